// The user presses Browse: the host, or the system, asks for a file, and the chosen name comes
// back. He presses a colour's button, and chooses another one.
#include "cuadros/frame/Peticiones.h"

#include "DialogoPrueba.h"
#include "OtraAplicacion.h"
#include "kit/app/RecordingApp.h"
#include "kit/kit.h"

#include <afxdlgs.h>

#include <colordlg.h>
#include <dlgs.h>

#include <functional>
#include <vector>

namespace {

constexpr UINT TituloAbrir = 61440;

using Pregunta = BOOL (*)(CString&, CDocTemplate**, int);

/// What the host is asked, beside the arguments that are handed through.
struct Llamada {
    DWORD opciones;
    BOOL abrir;
};

/// Asks with `pregunta` for a file of the kind `clase` and expects `llamada` of the host.
void Pide(Pregunta pregunta, CDocTemplate** plantilla, int clase, Llamada llamada,
          kit::Where donde = kit::Where::current()) {
    const testing::ScopedTrace traza(donde.file_name(), static_cast<int>(donde.line()), "asked");
    CString nombre(L"before.dat");
    // As the host gives it: neither checked nor put in quotes.
    kit::app.answerFilePrompt(L"C:\\two words\\after.dat b.dat");
    EXPECT_TRUE(pregunta(nombre, plantilla, clase));
    EXPECT_EQ(nombre, L"C:\\two words\\after.dat b.dat");

    const auto llamadas = kit::app.takeFilePrompts();
    ASSERT_EQ(llamadas.size(), 1U);
    EXPECT_EQ(llamadas[0].name, &nombre);
    EXPECT_EQ(llamadas[0].nameBefore, L"before.dat");
    EXPECT_EQ(llamadas[0].title, TituloAbrir);
    EXPECT_EQ(llamadas[0].flags, llamada.opciones);
    EXPECT_EQ(llamadas[0].open, llamada.abrir);
    EXPECT_EQ(llamadas[0].documentTemplate, plantilla);
    EXPECT_EQ(llamadas[0].kind, clase);
    EXPECT_EQ(llamadas[0].reserved, nullptr);
}

constexpr Llamada DeAbrir{0x1004, 1};
constexpr Llamada DeGuardar{0x2002, 0};
constexpr Llamada DeVarios{0x81204, 1};

} // namespace

TEST(Peticiones, HandOverTheCallersOwnNameAndTemplateAndKind) {
    CDocTemplate* plantilla = nullptr;
    Pide(Cuadros::PideFicheroAbrir, &plantilla, 32, DeAbrir);
    Pide(Cuadros::PideFicheroGuardar, &plantilla, 16, DeGuardar);
    Pide(Cuadros::PideVariosFicheros, &plantilla, 16, DeVarios);
}

TEST(Peticiones, AreOfNoTemplateAndNoKindInParticular) {
    Pide([](CString& nombre, CDocTemplate** plantilla,
            int) { return Cuadros::PideFicheroAbrir(nombre, plantilla); },
         nullptr, 0, DeAbrir);
    Pide([](CString& nombre, CDocTemplate** plantilla,
            int) { return Cuadros::PideFicheroGuardar(nombre, plantilla); },
         nullptr, 0, DeGuardar);
    Pide([](CString& nombre, CDocTemplate** plantilla,
            int) { return Cuadros::PideVariosFicheros(nombre, plantilla); },
         nullptr, 0, DeVarios);
}

TEST(Peticiones, ThatAreCancelledLeaveTheName) {
    CString nombre(L"typed.dat");
    kit::app.cancelFilePrompt();
    EXPECT_FALSE(Cuadros::PideFicheroAbrir(nombre, nullptr));
    EXPECT_EQ(nombre, L"typed.dat");
}

TEST(Peticiones, OfAHostWithoutAPromptAreCancelled) {
    CString nombre(L"typed.dat");
    // Made while the host has its application object, so that it does not take its place.
    CWinApp sinPeticion;
    {
        const OtraAplicacion otra(&sinPeticion);
        EXPECT_FALSE(Cuadros::PideFicheroAbrir(nombre, nullptr));
        EXPECT_FALSE(Cuadros::PideFicheroGuardar(nombre, nullptr));
        EXPECT_FALSE(Cuadros::PideVariosFicheros(nombre, nullptr));
        EXPECT_EQ(Cuadros::PlantillaActual(), nullptr);
    }
    {
        const OtraAplicacion ninguna(nullptr);
        EXPECT_FALSE(Cuadros::PideFicheroAbrir(nombre, nullptr));
        EXPECT_EQ(Cuadros::PlantillaActual(), nullptr);
    }
    EXPECT_EQ(nombre, L"typed.dat");
}

TEST(Peticiones, TakeTheTemplateFromTheHost) {
    EXPECT_EQ(Cuadros::PlantillaActual(), nullptr);
    auto* const plantilla = reinterpret_cast<CDocTemplate*>(&kit::app); // any address
    kit::app.setDocumentTemplate(plantilla);
    EXPECT_EQ(Cuadros::PlantillaActual(), plantilla);
    kit::app.setDocumentTemplate(nullptr);
}

namespace {

/// What the system was asked for a file, as the object that is attached to a child of its dialog
/// has it; null when there is none.
const OPENFILENAME* Pedido(const kit::Dialog& sistema) {
    HWND hijo = GetWindow(sistema.handle(), GW_CHILD);
    for (; hijo != nullptr; hijo = GetWindow(hijo, GW_HWNDNEXT))
        if (auto* const objeto = dynamic_cast<CFileDialog*>(CWnd::FromHandlePermanent(hijo)))
            return &objeto->GetOFN();
    return nullptr;
}

/// A dialog whose OK asks the system where to write, over a folder that is gone afterwards.
class PeticionesAlSistema : public testing::Test {
protected:
    CString nombre;
    std::vector<bool> confirmadas;

    void SetUp() override {
        wchar_t temporal[MAX_PATH];
        ASSERT_NE(GetTempPath(MAX_PATH, temporal), 0U);
        m_Carpeta.Format(L"%scuadros%lu", temporal, GetCurrentProcessId());
        ASSERT_TRUE(CreateDirectory(m_Carpeta, nullptr));
        ASSERT_NE(GetCurrentDirectory(MAX_PATH, m_Antes), 0U);
        const HANDLE fichero = CreateFile(Ruta(L"there.txt"), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
        ASSERT_NE(fichero, INVALID_HANDLE_VALUE);
        CloseHandle(fichero);
    }
    void TearDown() override {
        SetCurrentDirectory(m_Antes); // the system's dialog leaves it where the file is
        EXPECT_TRUE(DeleteFile(Ruta(L"there.txt")));
        EXPECT_TRUE(RemoveDirectory(m_Carpeta));
    }

    CString Ruta(const wchar_t* fichero) const { return m_Carpeta + L"\\" + fichero; }

    /// Opens the dialog and presses OK; what then comes is in `guion`.
    void Pide(kit::Script& guion) {
        m_Dialogo.AlAceptar([this](CDialogoPrueba&) {
            confirmadas.push_back(Cuadros::PideFicheroAlSistema(nombre, IDS_PRUEBA_FILTRO));
        });
        EXPECT_EQ(guion.run([this] { return m_Dialogo.DoModal(); }), IDCANCEL);
    }
    /// The step that presses OK, and Cancel once the system has answered.
    static void PulsaAceptar(kit::Dialog& vista) {
        vista.press(IDOK);
        vista.press(IDCANCEL);
    }
    HWND Dialogo() const { return m_Dialogo.m_hWnd; }

private:
    CDialogoPrueba m_Dialogo{NadaAlAbrir};
    CString m_Carpeta;
    wchar_t m_Antes[MAX_PATH] = {};
};

} // namespace

TEST_F(PeticionesAlSistema, BeginWithTheNameAndReturnTheWholePath) {
    nombre = Ruta(L"before.txt");
    kit::Script guion;
    guion.onDialog(PulsaAceptar);
    guion.onDialog([&](kit::Dialog& sistema) {
        EXPECT_EQ(sistema.owner(), Dialogo());
        EXPECT_FALSE(IsWindowEnabled(Dialogo()));
        EXPECT_EQ(sistema.text(cmb13), L"before.txt");
        const OPENFILENAME* const pedido = Pedido(sistema);
        ASSERT_NE(pedido, nullptr);
        constexpr DWORD suyas = OFN_EXPLORER | OFN_ENABLEHOOK | OFN_ENABLESIZING;
        EXPECT_EQ(pedido->Flags & ~suyas, 0x2002U);
        const auto filtros = sistema.combo(cmb1);
        EXPECT_EQ(filtros.count(), 2);
        EXPECT_EQ(filtros.text(0), L"Texts (*.txt)");
        EXPECT_EQ(filtros.text(1), L"Everything (*.*)");
        sistema.setText(cmb13, L"after");
        sistema.press(IDOK);
    });
    Pide(guion);
    EXPECT_EQ(confirmadas, (std::vector<bool>{true}));
    // No extension of its own is put behind the name.
    EXPECT_EQ(nombre.CompareNoCase(Ruta(L"after")), 0) << kit::utf8(nombre.GetString());
}

TEST_F(PeticionesAlSistema, AskBeforeTheyOverwrite) {
    nombre = Ruta(L"there.txt");
    kit::Script guion;
    guion.onDialog(PulsaAceptar);
    guion.onDialog([](kit::Dialog& sistema) { sistema.press(IDOK); });
    guion.expectMessage().answer(IDYES);
    Pide(guion);
    EXPECT_EQ(confirmadas, (std::vector<bool>{true}));
    EXPECT_EQ(nombre.CompareNoCase(Ruta(L"there.txt")), 0);
}

TEST_F(PeticionesAlSistema, ThatAreCancelledLeaveTheName) {
    nombre = L"typed.txt";
    kit::Script guion;
    guion.onDialog(PulsaAceptar);
    guion.onDialog([](kit::Dialog& sistema) {
        sistema.setText(cmb13, L"other.txt");
        sistema.press(IDCANCEL);
    });
    Pide(guion);
    EXPECT_EQ(confirmadas, (std::vector<bool>{false}));
    EXPECT_EQ(nombre, L"typed.txt");
}

namespace {

/// A dialog whose OK asks for a colour, beginning with `color`; `responde` is at the system's.
bool PideColor(COLORREF& color, const std::function<void(kit::Dialog&)>& responde) {
    bool confirmado = false;
    CDialogoPrueba dialogo(NadaAlAbrir);
    dialogo.AlAceptar(
        [&](CDialogoPrueba& prueba) { confirmado = Cuadros::PideColor(prueba, color); });
    kit::Script guion;
    guion.onDialog([](kit::Dialog& vista) {
        vista.press(IDOK);
        vista.press(IDCANCEL);
    });
    guion.onDialog([&](kit::Dialog& sistema) {
        EXPECT_EQ(sistema.owner(), dialogo.m_hWnd);
        EXPECT_FALSE(dialogo.IsWindowEnabled());
        responde(sistema);
    });
    guion.run([&] { return dialogo.DoModal(); });
    return confirmado;
}

} // namespace

TEST(Peticiones, OfAColourBeginWithItAndReturnTheChosenOne) {
    COLORREF color = RGB(12, 34, 56);
    EXPECT_TRUE(PideColor(color, [](kit::Dialog& sistema) {
        EXPECT_EQ(sistema.text(COLOR_RED), L"12");
        EXPECT_EQ(sistema.text(COLOR_GREEN), L"34");
        EXPECT_EQ(sistema.text(COLOR_BLUE), L"56");
        // Fully open: any colour can be composed at once.
        EXPECT_TRUE(sistema.visible(COLOR_RED));
        EXPECT_FALSE(sistema.enabled(COLOR_MIX));
        const auto* const objeto =
            dynamic_cast<CColorDialog*>(CWnd::FromHandlePermanent(sistema.handle()));
        ASSERT_NE(objeto, nullptr);
        constexpr DWORD opciones = CC_FULLOPEN | CC_ANYCOLOR;
        EXPECT_EQ(objeto->m_cc.Flags & opciones, opciones);
        sistema.setText(COLOR_RED, L"10");
        sistema.setText(COLOR_GREEN, L"120");
        sistema.setText(COLOR_BLUE, L"230");
        sistema.press(IDOK);
    }));
    EXPECT_EQ(color, static_cast<COLORREF>(RGB(10, 120, 230)));
}

TEST(Peticiones, OfAColourThatAreCancelledLeaveIt) {
    COLORREF color = RGB(12, 34, 56);
    EXPECT_FALSE(PideColor(color, [](kit::Dialog& sistema) {
        sistema.setText(COLOR_RED, L"200");
        sistema.press(IDCANCEL);
    }));
    EXPECT_EQ(color, static_cast<COLORREF>(RGB(12, 34, 56)));
}

TEST(Peticiones, ShowAColourByItsThreeParts) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        Cuadros::MuestraColor(prueba, RGB(0, 20, 255), IDC_PRUEBA_TEXTO, IDC_PRUEBA_FILA_QUITA,
                              IDC_PRUEBA_OTRO_TEXTO);
    });
    kit::Script guion;
    guion.onDialog([](kit::Dialog& vista) {
        EXPECT_EQ(vista.text(IDC_PRUEBA_TEXTO), L"0");
        EXPECT_EQ(vista.text(IDC_PRUEBA_FILA_QUITA), L"20");
        EXPECT_EQ(vista.text(IDC_PRUEBA_OTRO_TEXTO), L"255");
        vista.press(IDCANCEL);
    });
    EXPECT_EQ(guion.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}
