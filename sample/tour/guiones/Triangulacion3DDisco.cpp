#include "sample/tour/Guion.h"

#include "cuadros/resources/TriangulationIds.h"
#include "sample/tour/PreguntaFicheros.h"

static const Guion guionTriangulacion3DDisco(L"Triangulacion3DDiscoDlg", [](Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the list is empty, and OK waits.");
        dialogo.press(IDC_TRIANGULACION_3D_DISCO_SUMAR);
        dialogo.drop({NubeDePuntos(L"river bank.xyz")});

        dialogo.listBox(IDC_TRIANGULACION_3D_DISCO_HOJAS).choose({1});
        dialogo.press(IDC_TRIANGULACION_3D_DISCO_RESTAR);
        dialogo.type(IDC_TRIANGULACION_3D_DISCO_VALOR, L"12.5");
        dialogo.check(IDC_TRIANGULACION_3D_DISCO_OPCION_2);
        visita.Fotografia(dialogo.handle(),
                          L"Three files were added, a fourth was dropped, one removed.");
        dialogo.press(IDOK);
    });
    RespondePregunta(visita, {L"sheet-0412.xyz", L"sheet-0413.xyz", L"sheet-0414.xyz"});
});
