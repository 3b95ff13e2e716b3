#include "sample/tour/Guion.h"

#include "cuadros/resources/ImportIds.h"

static const Guion guionProyectarDEM(L"ProyectarDEMDlg", [](Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: without a report.");
        dialogo.help();
        dialogo.type(IDC_PROYECTAR_DEM_FICHERO_PROYECCION, L"C:\\survey\\utm-30.prj");
        dialogo.type(IDC_PROYECTAR_DEM_VALOR, L"12.5");
        dialogo.check(IDC_PROYECTAR_DEM_TIPO_2);
        dialogo.check(IDC_PROYECTAR_DEM_OPCION);
        dialogo.check(IDC_PROYECTAR_DEM_INFORME);
        visita.Fotografia(dialogo.handle(), L"A report without a file: there is no OK.");

        dialogo.type(IDC_PROYECTAR_DEM_FICHERO_INFORME, L"C:\\survey\\report.txt");
        // Only the box looks at the file.
        dialogo.check(IDC_PROYECTAR_DEM_INFORME, false);
        dialogo.check(IDC_PROYECTAR_DEM_INFORME);
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
});
