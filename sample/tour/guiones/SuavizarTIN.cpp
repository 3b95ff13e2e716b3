#include "sample/tour/Guion.h"

#include "cuadros/resources/TriangulationIds.h"

static const Guion guionSuavizarTIN(L"SuavizarTINDlg", [](Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the network is smoothed once.");
        dialogo.help();
        dialogo.type(IDC_SUAVIZAR_TIN_FACTOR, L"0.25");
        dialogo.check(IDC_SUAVIZAR_TIN_ITERAR);
        dialogo.type(IDC_SUAVIZAR_TIN_ITERACIONES, L"3");
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
});
