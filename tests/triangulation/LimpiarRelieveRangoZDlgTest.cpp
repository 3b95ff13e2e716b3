// A surveyor is about to clean a terrain model of points outside a range of elevations. What this
// dialog has in common with the one of the surroundings is tested with the values of both.
#include "Limpieza.h"

namespace {

using Cotana::CLimpiarRelieveRangoZDlg;

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

} // namespace
