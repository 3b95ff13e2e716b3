#include "sample/tour/Guion.h"

#include "cuadros/resources/TriangulationIds.h"
#include "sample/tour/Filas.h"

static const Guion guionTriangulacion3D(L"Triangulacion3DDlg", [](Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the first classification is chosen.");
        dialogo.type(IDC_TRIANGULACION_3D_VALOR, L"0.75");
        dialogo.check(IDC_TRIANGULACION_3D_ENTERO);
        // Everything but what no terrain model wants.
        dialogo.press(IDC_TRIANGULACION_3D_TODAS);
        kit::ListView lista = dialogo.list(IDC_TRIANGULACION_3D_CLASIFICACIONES);
        Quita(lista, Filas(lista, {L"Low point (noise)", L"High noise"}, 1));
        visita.Fotografia(dialogo.handle(), L"All but what is left out, right before OK.");
        dialogo.press(IDOK);
    });
});
