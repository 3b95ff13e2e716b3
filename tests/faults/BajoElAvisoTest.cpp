// A host takes a dialog away while the user reads that his text is no number. The handler that was
// running ends there: nothing is read from controls that are gone, and nothing more is refused.
#include "Apertura.h"

#include "cuadros/contours/CurvadoDlg.h"
#include "cuadros/contours/CurvadoTriangulacionDlg.h"
#include "cuadros/contours/VectoresPendienteDlg.h"
#include "cuadros/resources/ContoursIds.h"
#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/TriangulacionDlg.h"
#include "kit/kit.h"

namespace {

/// Opens a dialog, writes letters into all its edits, does `paso`, and destroys the dialog under
/// the box of this number, counted from 1.
///
/// @return how many boxes `paso` has opened.
int Destruye(CDialog& dialogo, const Apertura::Paso& paso, int bajo = 1) {
    int avisos = 0;
    Apertura apertura(dialogo);
    apertura.Ejecuta([&](HWND ventana) {
        EscribeLetras(ventana);
        apertura.alAviso = [&] {
            if (++avisos == bajo)
                dialogo.DestroyWindow();
        };
        paso(ventana);
    });
    EXPECT_EQ(dialogo.m_hWnd, nullptr);
    return avisos;
}

void Acepta(HWND ventana) {
    SendMessageW(ventana, WM_COMMAND, IDOK, 0);
}

} // namespace

TEST(BajoElAviso, ChangeOfTheCodesKeepsTheBreaklinesOfBefore) {
    Cotana::CDataTriangulacion data;
    data.m_Codigos.Inserta(Cotana::CElementoDigiTab(L"RD", L"Road edge"), true);
    data.m_Codigos.Inserta(Cotana::CElementoDigiTab(L"WL", L"Wall"), true);
    Cotana::CTriangulacionDlg dialogo(data);
    const int avisos = Destruye(dialogo, [&](HWND ventana) {
        EXPECT_EQ(data.m_CodigosRuptura.Cantidad(), 2U);
        SendDlgItemMessageW(ventana, IDC_TRIANGULACION_NINGUN_CODIGO, BM_CLICK, 0, 0);
    });
    EXPECT_EQ(avisos, 1);
    EXPECT_EQ(data.m_CodigosRuptura.Cantidad(), 2U);
    EXPECT_EQ(data.m_Codigos.Cantidad(), 2U);
}

// The change itself has read the codes by then; the breaklines are shown by a second exchange.
TEST(BajoElAviso, ChangeOfTheCodesMayEndUnderItsSecondBox) {
    Cotana::CDataTriangulacion data;
    data.m_Codigos.Inserta(Cotana::CElementoDigiTab(L"RD", L"Road edge"), true);
    data.m_Codigos.Inserta(Cotana::CElementoDigiTab(L"WL", L"Wall"), true);
    Cotana::CTriangulacionDlg dialogo(data);
    const int avisos = Destruye(
        dialogo,
        [](HWND ventana) {
            SendDlgItemMessageW(ventana, IDC_TRIANGULACION_NINGUN_CODIGO, BM_CLICK, 0, 0);
        },
        2);
    EXPECT_EQ(avisos, 2);
    ASSERT_EQ(data.m_CodigosRuptura.Cantidad(), 1U);
    EXPECT_EQ(data.m_CodigosRuptura[0].GetCodigo(), L"WL");
}

TEST(BajoElAviso, OkOfTheSlopeVectorsRefusesNothingMore) {
    Cotana::CDataVectoresPendiente data; // it lacks its codes
    CVectoresPendienteDlg dialogo(data, nullptr);
    EXPECT_EQ(Destruye(dialogo,
                       [](HWND ventana) {
                           SetDlgItemTextW(ventana, IDC_VECTORES_PENDIENTE_CADENA_1, L"");
                           Acepta(ventana);
                       }),
              1);
}

TEST(BajoElAviso, OkOfTheContoursFromATriangulationRefusesNothingMore) {
    Cotana::CCurvadoTriangulacionDlg dialogo(0, L"CT");
    EXPECT_EQ(Destruye(dialogo, Acepta), 1);
}

// It would throw for the list of types, which is gone; here nobody catches.
TEST(BajoElAviso, OkOfTheContourOptionsThatTheHostCallsReturns) {
    Cotana::CDataCurvado data;
    data.m_TipoSuavizado = 1;
    CCurvadoDlg dialogo(data, nullptr, 0, 100, SW_SHOWNORMAL);
    EXPECT_EQ(Destruye(dialogo, [&](HWND) { EXPECT_NO_THROW(dialogo.OnOK()); }), 1);
    EXPECT_EQ(data.m_TipoSuavizado, 1);
}
