// The host wants no row of controls: the dialog opens without it, what was below has moved up, and
// the window is lower by as much.
#include "cuadros/frame/Compacta.h"

#include "DialogoPrueba.h"
#include "kit/kit.h"

namespace {

CRect MarcoDe(CWnd& dialogo, int control) {
    CRect marco;
    dialogo.GetDlgItem(control)->GetWindowRect(&marco);
    return marco;
}

} // namespace

TEST(Compacta, HeightBetweenTwoControlsIsThatOfTheirTops) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        const int altura = Cuadros::AlturaEntre(prueba, IDC_PRUEBA_FILA_QUITA, IDC_PRUEBA_TEXTO);
        EXPECT_EQ(altura, MarcoDe(prueba, IDC_PRUEBA_TEXTO).top -
                              MarcoDe(prueba, IDC_PRUEBA_FILA_QUITA).top);
        EXPECT_GT(altura, 0);
        EXPECT_EQ(Cuadros::AlturaEntre(prueba, IDC_PRUEBA_TEXTO, IDC_PRUEBA_FILA_QUITA), -altura);
        prueba.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(dialogo.DoModal(), IDCANCEL);
}

TEST(Compacta, RaisedControlsKeepLeftEdgeAndSize) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        const CRect texto = MarcoDe(prueba, IDC_PRUEBA_TEXTO);
        const CRect aceptar = MarcoDe(prueba, IDOK);
        const CRect cancelar = MarcoDe(prueba, IDCANCEL);
        Cuadros::Sube(prueba, 20, {IDC_PRUEBA_TEXTO, IDOK});
        EXPECT_EQ(MarcoDe(prueba, IDC_PRUEBA_TEXTO), texto - CPoint(0, 20));
        EXPECT_EQ(MarcoDe(prueba, IDOK), aceptar - CPoint(0, 20));
        EXPECT_EQ(MarcoDe(prueba, IDCANCEL), cancelar);
        prueba.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(dialogo.DoModal(), IDCANCEL);
}

TEST(Compacta, ShrunkWindowKeepsItsPlaceAndWidth) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        CRect antes;
        prueba.GetWindowRect(&antes);
        Cuadros::Encoge(prueba, 25);
        CRect despues;
        prueba.GetWindowRect(&despues);
        antes.bottom -= 25;
        EXPECT_EQ(despues, antes);
        prueba.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(dialogo.DoModal(), IDCANCEL);
}

TEST(Compacta, ShrunkWindowIsNoLongerTopmost) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        prueba.SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        EXPECT_NE(prueba.GetExStyle() & WS_EX_TOPMOST, 0U);
        Cuadros::Encoge(prueba, 25);
        EXPECT_EQ(prueba.GetExStyle() & WS_EX_TOPMOST, 0U);
        prueba.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(dialogo.DoModal(), IDCANCEL);
}

TEST(Compacta, AbsentControlsArePassedOver) {
    constexpr int ninguno = 4321;
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        EXPECT_EQ(Cuadros::AlturaEntre(prueba, IDC_PRUEBA_FILA_QUITA, ninguno), 0);
        EXPECT_EQ(Cuadros::AlturaEntre(prueba, ninguno, IDC_PRUEBA_TEXTO), 0);
        const CRect aceptar = MarcoDe(prueba, IDOK);
        Cuadros::Sube(prueba, 20, {ninguno, IDOK});
        EXPECT_EQ(MarcoDe(prueba, IDOK), aceptar - CPoint(0, 20));
        prueba.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(dialogo.DoModal(), IDCANCEL);
    EXPECT_EQ(Cuadros::AlturaEntre(dialogo, IDOK, IDCANCEL), 0);
    Cuadros::Sube(dialogo, 20, {IDOK});
    Cuadros::Encoge(dialogo, 20);
    EXPECT_EQ(dialogo.m_hWnd, nullptr);
}
