#include "sample/tour/Guion.h"

#include "cuadros/resources/TriangulationIds.h"
#include "sample/tour/PreguntaFicheros.h"

static const Guion guionGenerarCases(L"GenerarCasesDlg", [](Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the list is empty, and OK waits.");
        dialogo.drop({NubeDePuntos(L"sheet-0413.xyz"), NubeDePuntos(L"sheet-0412.xyz")});
        dialogo.press(IDC_GENERAR_CASES_SUMAR);
        dialogo.type(IDC_GENERAR_CASES_VALOR, L"250");
        visita.Fotografia(dialogo.handle(), L"Two files were dropped, one was added.");
        dialogo.press(IDOK);
    });
    RespondePregunta(visita, {L"river bank.xyz"});
});
