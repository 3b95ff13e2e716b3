#include "sample/tour/Guion.h"

#include "cuadros/resources/ImportIds.h"

static const Guion guionTipoProyeccion(L"TipoProyeccionDlg", [](Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(),
                          L"As it opens: both groups asked for their first, so one went on.");
        dialogo.help();
        dialogo.check(IDC_TIPO_PROYECCION_1_2);
        dialogo.check(IDC_TIPO_PROYECCION_2_1);
        visita.Fotografia(dialogo.handle(), L"The first of one group excludes that of the other.");
        dialogo.press(IDOK);
    });
});
