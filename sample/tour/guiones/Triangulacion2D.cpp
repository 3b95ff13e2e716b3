#include "sample/tour/Guion.h"

#include "cuadros/resources/TriangulationIds.h"
#include "sample/tour/Filas.h"

static const Guion guionTriangulacion2D(L"Triangulacion2DDlg", [](Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the first classification is chosen.");
        dialogo.type(IDC_TRIANGULACION_2D_VALOR, L"2.5");
        dialogo.type(IDC_TRIANGULACION_2D_NOMBRE, L"Valley floor");
        kit::ListView lista = dialogo.list(IDC_TRIANGULACION_2D_CLASIFICACIONES);
        lista.choose(Filas(lista, {L"Road surface", L"Ground"}, 1));
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
});
