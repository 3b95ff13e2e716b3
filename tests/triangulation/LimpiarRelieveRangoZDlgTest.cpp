// A surveyor is about to clean a terrain model of points outside a range of elevations. What this
// dialog has in common with the one of the surroundings is tested with the values of both.
#include "Limpieza.h"

namespace {

using Cotana::CLimpiarRelieveRangoZDlg;

static_assert(IDD_LIMPIAR_RELIEVE_RANGO_Z == 19067);
static_assert(IDC_LIMPIAR_RELIEVE_RANGO_Z_VALOR_A == 18618);
static_assert(IDC_LIMPIAR_RELIEVE_RANGO_Z_VALOR_B == 19202);

using LimpiarRelieveRangoZDlg = ConLimpieza<CLimpiarRelieveRangoZDlg>;

TEST_F(LimpiarRelieveRangoZDlg, AsksForTheTwoElevations) {
    data.m_ValorA = 120;
    data.m_ValorB = 2480.5;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.caption(), L"Clean the Terrain by Elevation");
        dialogo.picture(L"LimpiarRelieveRangoZDlg");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(LimpiarRelieveRangoZDlg, MnemonicsReachTheirControls) {
    Abre([](kit::Dialog& dialogo) {
        kit::keyboard::mnemonic(L'i');
        EXPECT_EQ(dialogo.focus(), B);
        kit::keyboard::mnemonic(L'l');
        EXPECT_EQ(dialogo.focus(), A);
        kit::keyboard::mnemonic(L'h');
        EXPECT_EQ(kit::app.takeHelpRequests(), PaginaDeAyuda(150139));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(LimpiarRelieveRangoZDlg, HasClassInformationOfItsOwn) {
    CompruebaClase(CLimpiarRelieveRangoZDlg(data), RUNTIME_CLASS(CLimpiarRelieveRangoZDlg),
                   "CLimpiarRelieveRangoZDlg");
}

} // namespace
