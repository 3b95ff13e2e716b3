// The user chooses a conversation in the sample host's window and opens it. The host carries out
// what was accepted.
#include "sample/LanzadorDlg.h"

#include "kit/kit.h"

#include <string>

#include "../DrawingsFolder.h"
#include "cuadros/resources/TriangulationIds.h"
#include "sample/EjemploIds.h"

namespace {

/// Chooses a conversation by its title.
void Elige(const kit::Dialog& lanzador, const wchar_t* titulo) {
    auto& arbol =
        *static_cast<CTreeCtrl*>(CWnd::FromHandle(lanzador.control(IDC_LANZADOR_CONVERSACIONES)));
    for (HTREEITEM raiz = arbol.GetRootItem(); raiz; raiz = arbol.GetNextSiblingItem(raiz)) {
        for (HTREEITEM hoja = arbol.GetChildItem(raiz); hoja; hoja = arbol.GetNextSiblingItem(hoja))
            if (arbol.GetItemText(hoja) == titulo)
                arbol.SelectItem(hoja);
    }
}

class Lanzador : public testing::Test {
protected:
    Lanzador() {
        terreno.modelo = ElevationGrid(2, 10, {437200, 4486300}, {100, 120, 110, 130});
        terreno.carpetaDibujos = carpeta.Name();
        terreno.curvado.m_Equidistancia = 5;
        terreno.curvado.m_EquidistanciaMaestra = 25;
    }

    /// Opens a conversation from the window and ends it with a button.
    /// @return what the window says then.
    std::wstring Abre(const wchar_t* titulo, int boton) {
        std::wstring resultado;
        guion.onDialog([&](kit::Dialog& lanzador) {
            Elige(lanzador, titulo);
            lanzador.press(IDC_LANZADOR_ABRIR);
            resultado = lanzador.text(IDC_LANZADOR_RESULTADO);
            lanzador.press(IDCANCEL);
        });
        guion.onDialog([boton](kit::Dialog& dialogo) { dialogo.press(boton); });
        if (fallo)
            guion.expectMessage().inspect(
                [this](kit::MessageDialog& aviso) { avisado = aviso.text(); });
        guion.run([&] { return CLanzadorDlg(terreno).DoModal(); });
        return resultado;
    }

    bool HayDibujo() const {
        return GetFileAttributesW(carpeta.File(L"contours.svg")) != INVALID_FILE_ATTRIBUTES;
    }

    const DrawingsFolder carpeta;
    Terreno terreno;
    kit::Script guion;
    bool fallo = false; ///< A message of the host's is expected, and noted in the next one.
    std::wstring avisado;
};

} // namespace

TEST_F(Lanzador, ShowsTheRecordBeforeAndAfter) {
    guion.onDialog([](kit::Dialog& lanzador) {
        Elige(lanzador, L"Smoothing");
        const kit::ListView ficha = lanzador.list(IDC_LANZADOR_FICHA);
        EXPECT_EQ(ficha.column(0),
                  (std::vector<std::wstring>{L"m_Factor", L"m_Iterar", L"m_Iteraciones"}));
        EXPECT_EQ(ficha.text(1, 1), L"0");
        lanzador.press(IDC_LANZADOR_ABRIR);
        EXPECT_EQ(ficha.text(1, 1), L"0");
        EXPECT_EQ(ficha.column(2), (std::vector<std::wstring>{L"", L"1", L""}));
        EXPECT_EQ(lanzador.text(IDC_LANZADOR_RESULTADO), L"Accepted.");
        lanzador.press(IDCANCEL);
    });
    guion.onDialog([](kit::Dialog& dialogo) {
        dialogo.check(IDC_SUAVIZAR_TIN_ITERAR);
        dialogo.press(IDOK);
    });
    guion.run([&] { return CLanzadorDlg(terreno).DoModal(); });
    EXPECT_EQ(terreno.suavizado.m_Iterar, 1);
}

TEST_F(Lanzador, CancelledContoursAreNotDrawn) {
    EXPECT_EQ(Abre(L"Contour options", IDCANCEL), L"Cancelled.");
    EXPECT_FALSE(HayDibujo());
}

TEST_F(Lanzador, AcceptedContoursAreDrawn) {
    EXPECT_NE(Abre(L"Contour options", IDOK).find(L" contours and "), std::wstring::npos);
    EXPECT_TRUE(HayDibujo());
}

TEST_F(Lanzador, GridThatIsImportedKeepsItsSpacing) {
    constexpr double paso = 0.0083333; // the dialog shows three decimals
    terreno.importarGrid.m_Paso.m_X = paso;
    fallo = true; // there is no file
    Abre(L"Elevation grid", IDOK);
    EXPECT_EQ(terreno.importarGrid.m_Paso.m_X, paso);
}

TEST_F(Lanzador, SaysWhatCouldNotBeCarriedOut) {
    terreno.carpetaDibujos += L"\\gone";
    fallo = true;
    const std::wstring resultado = Abre(L"Contour options", IDOK);
    EXPECT_NE(resultado.find(L"contours.dxf: there is no such folder"), std::wstring::npos);
    EXPECT_EQ(avisado, resultado);
}
