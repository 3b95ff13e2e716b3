#include "sample/tour/Guion.h"

#include <cotana/dialogos_dibujo/DialogosDibujoIds.h>

#include "cuadros/resources/ContoursIds.h"
#include "sample/tour/PreguntaFicheros.h"

namespace {

std::wstring ConDosDecimales(double cota) {
    CString texto;
    texto.Format(L"%.2f", cota);
    return texto.GetString();
}

/// Limits the elevations, at first to what lies above the model.
void LimitaCotas(kit::Dialog& dialogo) {
    // A range that nobody has asked for yet is the whole model.
    const std::wstring minima = dialogo.text(IDC_CURVADO_COTA_MINIMA);
    const double baja = std::stod(minima), alta = std::stod(dialogo.text(IDC_CURVADO_COTA_MAXIMA));
    dialogo.check(IDC_CURVADO_RANGO_COTA);
    dialogo.type(IDC_CURVADO_COTA_MINIMA, ConDosDecimales(alta + 1));
    dialogo.press(IDOK);
    if (alta - baja >= 1) {
        const double decima = (alta - baja) / 10;
        dialogo.type(IDC_CURVADO_COTA_MINIMA, ConDosDecimales(baja + decima));
        dialogo.type(IDC_CURVADO_COTA_MAXIMA, ConDosDecimales(alta - decima));
    } else {
        // Two decimals could miss so flat a model.
        dialogo.type(IDC_CURVADO_COTA_MINIMA, minima);
        dialogo.check(IDC_CURVADO_RANGO_COTA, false);
    }
}

} // namespace

static const Guion guionCurvado(L"CurvadoDlg", [](Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: contours of the whole model.");
        dialogo.help();
        dialogo.press(IDC_CURVADO_CODIGOS);
        dialogo.type(IDC_CURVADO_ESCALA, L"4000");
        dialogo.press(IDC_CURVADO_AVANZADO);

        LimitaCotas(dialogo);

        dialogo.check(IDC_CURVADO_TEXTO_CURVAS);
        dialogo.type(IDC_CURVADO_TEXTO_VALOR_2, L"150");
        dialogo.check(IDC_CURVADO_LIMITE);
        dialogo.press(IDC_CURVADO_BUSCAR);
        dialogo.choose(IDC_CURVADO_TIPO_SUAVIZADO, 2);
        dialogo.spin(IDC_CURVADO_NIVEL_FLECHAS, 2);
        dialogo.check(IDC_CURVADO_RESPETAR_CURVAS);
        dialogo.type(IDC_CURVADO_CURVAS_A_RESPETAR_1, L"OLD-CN");
        dialogo.type(IDC_CURVADO_CURVAS_A_RESPETAR_2, L"OLD-CNM");
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        dialogo.type(IDC_CURVADO_CODIGOS_CODIGO_5, L"CN-LBL");
        visita.Fotografia(dialogo.handle(), L"The codes of what is drawn.");
        dialogo.press(IDOK);
    });
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        dialogo.check(IDC_CURVADO_AVANZADO_POR_ESCALA, false);
        dialogo.type(IDC_CURVADO_AVANZADO_VALOR_1, L"0.05");
        visita.Fotografia(dialogo.handle(), L"The host's own dialog of the two advanced values.");
        dialogo.press(IDOK);
    });
    visita.Guion().expectMessage().inspect([&visita](kit::MessageDialog& aviso) {
        visita.Fotografia(aviso.handle(),
                          L"The lowest elevation was above the highest, and above the model.");
    });
    RespondePregunta(visita, {L"hills.dxf"});
});
