#include "sample/tour/Guion.h"

#include "cuadros/resources/ContoursIds.h"
#include "sample/tour/PreguntaFicheros.h"

static const Guion guionVectoresPendiente(L"VectoresPendienteDlg", [](Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the whole model is drawn.");
        dialogo.help();
        dialogo.type(IDC_VECTORES_PENDIENTE_VALOR_1, L"25");
        dialogo.type(IDC_VECTORES_PENDIENTE_TEXTO_VALOR_1, L"1.8");
        dialogo.check(IDC_VECTORES_PENDIENTE_LIMITE);
        dialogo.press(IDOK);

        dialogo.press(IDC_VECTORES_PENDIENTE_BUSCAR);
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
    visita.Guion().expectMessage().inspect([&visita](kit::MessageDialog& aviso) {
        visita.Fotografia(aviso.handle(), L"The boundary had no file.");
    });
    RespondePregunta(visita, {L"hills.dxf"});
});
