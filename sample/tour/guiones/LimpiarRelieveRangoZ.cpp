#include "sample/tour/Guion.h"

#include "cuadros/resources/TriangulationIds.h"

static const Guion guionLimpiarRelieveRangoZ(L"LimpiarRelieveRangoZDlg", [](Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the elevations that stay.");
        dialogo.help();
        dialogo.type(IDC_LIMPIAR_RELIEVE_RANGO_Z_VALOR_A, L"580");
        dialogo.type(IDC_LIMPIAR_RELIEVE_RANGO_Z_VALOR_B, L"740.126");
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
});
