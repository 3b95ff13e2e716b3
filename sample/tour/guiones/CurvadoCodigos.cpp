#include "sample/tour/Guion.h"

#include "cuadros/resources/ContoursIds.h"

static const Guion guionCurvadoCodigos(L"CurvadoCodigosDlg", [](Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens.");
        dialogo.help();
        dialogo.type(IDC_CURVADO_CODIGOS_CODIGO_3, L"");
        dialogo.type(IDC_CURVADO_CODIGOS_CODIGO_4, L"");
        dialogo.type(IDC_CURVADO_CODIGOS_CODIGO_5, L"CN-LBL");
        visita.Fotografia(dialogo.handle(), L"A code may be empty, too.");
        dialogo.press(IDOK);
    });
});
