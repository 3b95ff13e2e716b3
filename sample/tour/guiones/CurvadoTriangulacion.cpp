#include "sample/tour/Guion.h"

#include "cuadros/resources/ContoursIds.h"

static const Guion guionCurvadoTriangulacion(L"CurvadoTriangulacionDlg", [](Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the contours have no code yet.");
        dialogo.type(IDC_CURVADO_TRIANGULACION_EQUIDISTANCIA, L"2.5");
        dialogo.press(IDOK);

        dialogo.type(IDC_CURVADO_TRIANGULACION_CADENA, L"CN");
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
    visita.Guion().expectMessage().inspect([&visita](kit::MessageDialog& aviso) {
        visita.Fotografia(aviso.handle(), L"The code was missing.");
    });
});
