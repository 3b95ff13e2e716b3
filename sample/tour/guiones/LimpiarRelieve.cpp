#include "sample/tour/Guion.h"

#include "cuadros/resources/TriangulationIds.h"

static const Guion guionLimpiarRelieve(L"LimpiarRelieveDlg", [](Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(),
                          L"As it opens: how far a point may stand out from its surroundings.");
        dialogo.help();
        dialogo.type(IDC_LIMPIAR_RELIEVE_VALOR_A, L"7.5");
        dialogo.type(IDC_LIMPIAR_RELIEVE_VALOR_B, L"0.345");
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
});
