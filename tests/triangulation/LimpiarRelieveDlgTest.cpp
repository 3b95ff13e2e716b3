// A surveyor is about to clean a terrain model of points that stand out from their surroundings.
// What this dialog has in common with the one of the elevations is tested with the values of both.
#include "Limpieza.h"

namespace {

using LimpiarRelieveDlg = ConLimpieza<Cotana::CLimpiarRelieveDlg>;

TEST_F(LimpiarRelieveDlg, AsksForTheSurroundingsAndTheDifference) {
    data.m_ValorA = 5;
    data.m_ValorB = 0.5;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.caption(), L"Clean the Terrain");
        dialogo.picture(L"LimpiarRelieveDlg");
        dialogo.press(IDCANCEL);
    });
}

} // namespace
