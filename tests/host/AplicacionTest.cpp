// The user presses Browse in a host that asks with the system's own dialog: he types the name of a
// file, or of several, and confirms, or he cancels.
#include <cotana/aplicacion/Aplicacion.h>

#include "kit/app/RecordingApp.h"
#include "kit/kit.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>

namespace {

constexpr DWORD Abrir = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY;
constexpr DWORD AbrirVarios = Abrir | OFN_EXPLORER | OFN_ALLOWMULTISELECT;
constexpr DWORD Guardar = OFN_CREATEPROMPT | OFN_OVERWRITEPROMPT;
constexpr int CampoNombre = 1148;

class AplicacionDelHost : public testing::Test {
protected:
    AplicacionDelHost() {
        std::filesystem::create_directories(carpeta);
        for (const auto* nombre : {L"one.dat", L"two words.dat", L"three.dat"})
            std::ofstream(carpeta / nombre) << "data";
    }
    ~AplicacionDelHost() override {
        // The system's dialog makes the folder that it showed the current one.
        std::filesystem::current_path(carpetaDeAntes);
        std::filesystem::remove_all(carpeta);
    }

    std::wstring Ruta(const wchar_t* nombre) const { return (carpeta / nombre).wstring(); }

    /// Asks as the host's application does, the user typing `tecleado` and pressing `boton`.
    BOOL Pide(CString& nombre, DWORD opciones, BOOL abrir, const std::wstring& tecleado,
              int boton) {
        kit::Script script;
        script.onDialog([=](kit::Dialog& dialogo) {
            EXPECT_EQ(dialogo.caption(), L"Open");
            dialogo.setText(CampoNombre, tecleado);
            dialogo.press(boton);
        });
        return script.run([&] {
            return kit::app.CAplicacion::PideFichero(nombre, 61440, opciones, abrir, nullptr, 0,
                                                     nullptr);
        });
    }

    const std::filesystem::path carpetaDeAntes = std::filesystem::current_path();
    const std::filesystem::path carpeta =
        std::filesystem::temp_directory_path() / L"cuadros file prompt";
};

} // namespace

TEST_F(AplicacionDelHost, GivesTheChosenFileAsItIs) {
    CString nombre;
    EXPECT_TRUE(Pide(nombre, Abrir, TRUE, Ruta(L"two words.dat"), IDOK));
    EXPECT_EQ(nombre, Ruta(L"two words.dat").c_str());
}

TEST_F(AplicacionDelHost, GivesTheFileToWrite) {
    CString nombre;
    EXPECT_TRUE(Pide(nombre, OFN_OVERWRITEPROMPT, FALSE, Ruta(L"new.dat"), IDOK));
    EXPECT_EQ(nombre, Ruta(L"new.dat").c_str());
}

TEST_F(AplicacionDelHost, CancelledLeavesTheName) {
    CString nombre(L"before");
    EXPECT_FALSE(Pide(nombre, Guardar, FALSE, Ruta(L"one.dat"), IDCANCEL));
    EXPECT_EQ(nombre, L"before");
}

TEST_F(AplicacionDelHost, JoinsSeveralFilesByBlanksWithQuotesWhereTheyHoldOne) {
    // The name on entry chooses the folder that is shown.
    CString nombres(Ruta(L"one.dat").c_str());
    EXPECT_TRUE(Pide(nombres, AbrirVarios, TRUE, L"\"one.dat\" \"three.dat\"", IDOK));
    // The folder's own name has blanks.
    EXPECT_EQ(nombres, (L"\"" + Ruta(L"one.dat") + L"\" \"" + Ruta(L"three.dat") + L"\"").c_str());
}

TEST_F(AplicacionDelHost, QuotesOneOfSeveralToo) {
    CString nombres;
    EXPECT_TRUE(Pide(nombres, AbrirVarios, TRUE, Ruta(L"two words.dat"), IDOK));
    EXPECT_EQ(nombres, (L"\"" + Ruta(L"two words.dat") + L"\"").c_str());
}

TEST_F(AplicacionDelHost, QuotesNoNameButThoseWithABlankOrAByteOrderMark) {
    const std::filesystem::path temporal = std::filesystem::temp_directory_path();
    ASSERT_EQ(temporal.wstring().find(L' '), std::wstring::npos);
    for (const wchar_t* nombre : {L"plain.dat", L"mark\uFEFF.dat"}) {
        const std::wstring ruta = (temporal / nombre).wstring();
        std::ofstream(temporal / nombre) << "data";
        CString nombres;
        EXPECT_TRUE(Pide(nombres, AbrirVarios, TRUE, ruta, IDOK));
        const bool conMarca = ruta.find(L'\uFEFF') != std::wstring::npos;
        EXPECT_EQ(nombres, (conMarca ? L"\"" + ruta + L"\"" : ruta).c_str());
        std::filesystem::remove(temporal / nombre);
    }
}

TEST_F(AplicacionDelHost, OpensInTheCurrentFolderWhereverItEndedBefore) {
    const std::filesystem::path otra = carpeta / L"other";
    std::filesystem::create_directories(otra);
    std::ofstream(otra / L"four.dat") << "data";
    CString nombre;
    EXPECT_TRUE(Pide(nombre, Abrir, TRUE, (otra / L"four.dat").wstring(), IDOK));

    std::filesystem::current_path(carpeta);
    nombre.Empty();
    EXPECT_TRUE(Pide(nombre, Abrir, TRUE, L"one.dat", IDOK));
    EXPECT_EQ(nombre, Ruta(L"one.dat").c_str());
}

TEST_F(AplicacionDelHost, HasNoDocumentTemplate) {
    EXPECT_EQ(kit::app.CAplicacion::PlantillaActual(), nullptr);
}

TEST_F(AplicacionDelHost, HasClassInformation) {
    EXPECT_TRUE(kit::app.IsKindOf(RUNTIME_CLASS(Cotana::CAplicacion)));
    EXPECT_TRUE(kit::app.IsKindOf(RUNTIME_CLASS(CWinApp)));
}
