// A surveyor is about to clean a terrain model of points that stand out from their surroundings.
// What this dialog has in common with the one of the elevations is tested with the values of both.
#include "Limpieza.h"

namespace {

static_assert(IDD_LIMPIAR_RELIEVE == 19001);
static_assert(IDC_LIMPIAR_RELIEVE_VALOR_A == 19009);
static_assert(IDC_LIMPIAR_RELIEVE_VALOR_B == 19010);

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

TEST_F(LimpiarRelieveDlg, MnemonicsReachTheirControls) {
    Abre([](kit::Dialog& dialogo) {
        kit::keyboard::mnemonic(L'd');
        EXPECT_EQ(dialogo.focus(), B);
        kit::keyboard::mnemonic(L'w');
        EXPECT_EQ(dialogo.focus(), A);
        kit::keyboard::mnemonic(L'h');
        EXPECT_EQ(kit::app.takeHelpRequests(), PaginaDeAyuda(150073));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(LimpiarRelieveDlg, HasNoClassInformationOfItsOwn) {
    EXPECT_EQ(Cotana::CLimpiarRelieveDlg(data).GetRuntimeClass(), RUNTIME_CLASS(CDialog));
}

} // namespace
