#include "sample/conversaciones/Curvado.h"

#include <cotana/dialogos_dibujo/DialogosDibujoIds.h>

#include "cuadros/contours/CurvadoDlg.h"
#include "cuadros/resources/ContoursIds.h"
#include "sample/conversaciones/PreguntaFicheros.h"

void PreparaCurvado(Terreno& terreno) {
    Cotana::CDataCurvado& data = terreno.curvado;
    if (data.m_RangoCota)
        return;
    // A range that the user has not asked for yet is the whole model.
    data.m_CotaMinima = terreno.modelo.Lowest();
    data.m_CotaMaxima = terreno.modelo.Highest();
}

INT_PTR AbreCurvado(Terreno& terreno, CWnd* padre) {
    CCurvadoDlg dialogo(terreno.curvado, nullptr, terreno.modelo.Lowest(), terreno.modelo.Highest(),
                        SW_SHOWNORMAL, padre);
    return dialogo.DoModal();
}

Ficha FichaCurvado(const Terreno& terreno) {
    const Cotana::CDataCurvado& data = terreno.curvado;
    return {
        {L"m_ValorAvanzado1", Valor(data.m_ValorAvanzado1)},
        {L"m_ValorAvanzado2", Valor(data.m_ValorAvanzado2)},
        {L"m_AvanzadoPorEscala", Valor(data.m_AvanzadoPorEscala)},
        {L"m_TextoCurvas", Valor(data.m_TextoCurvas)},
        {L"m_Limite", Valor(data.m_Limite)},
        {L"m_OpcionSuavizado", Valor(data.m_OpcionSuavizado)},
        {L"m_Opcion1", Valor(data.m_Opcion1)},
        {L"m_RespetarCurvas", Valor(data.m_RespetarCurvas)},
        {L"m_RangoCota", Valor(data.m_RangoCota)},
        {L"m_OpcionTexto", Valor(data.m_OpcionTexto)},
        {L"m_CodigoCurvas1", Valor(data.m_CodigoCurvas1)},
        {L"m_CodigoCurvas2", Valor(data.m_CodigoCurvas2)},
        {L"m_CodigoCurvas3", Valor(data.m_CodigoCurvas3)},
        {L"m_CodigoCurvas4", Valor(data.m_CodigoCurvas4)},
        {L"m_CodigoCurvas5", Valor(data.m_CodigoCurvas5)},
        {L"m_CurvasARespetar1", Valor(data.m_CurvasARespetar1)},
        {L"m_CurvasARespetar2", Valor(data.m_CurvasARespetar2)},
        {L"m_FicheroLimite", Valor(data.m_FicheroLimite)},
        {L"m_Escala", Valor(data.m_Escala)},
        {L"m_TextoValor1", Valor(data.m_TextoValor1)},
        {L"m_Equidistancia", Valor(data.m_Equidistancia)},
        {L"m_EquidistanciaMaestra", Valor(data.m_EquidistanciaMaestra)},
        {L"m_TextoValor2", Valor(data.m_TextoValor2)},
        {L"m_CotaMinima", Valor(data.m_CotaMinima)},
        {L"m_CotaMaxima", Valor(data.m_CotaMaxima)},
        {L"m_TextoEntero", Valor(data.m_TextoEntero)},
        {L"m_NivelSuavizado", Valor(data.m_NivelSuavizado)},
        {L"m_TipoSuavizado", Valor(data.m_TipoSuavizado)},
    };
}

namespace {

/// An elevation, a part of the way up from the model's lowest to its highest, as one reads them in
/// the dialog, and some metres more.
std::wstring CotaDelModelo(const kit::Dialog& dialogo, double parte, double metros = 0) {
    const double minima = _wtof(dialogo.text(IDC_CURVADO_COTA_MINIMA_MODELO).c_str());
    const double maxima = _wtof(dialogo.text(IDC_CURVADO_COTA_MAXIMA_MODELO).c_str());
    CString cota;
    cota.Format(L"%.2f", minima + parte * (maxima - minima) + metros);
    return cota.GetString();
}

} // namespace

void ConduceCurvado(Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: contours of the whole model.");
        dialogo.help();
        dialogo.press(IDC_CURVADO_CODIGOS);
        dialogo.type(IDC_CURVADO_ESCALA, L"4000");
        dialogo.press(IDC_CURVADO_AVANZADO);

        dialogo.check(IDC_CURVADO_RANGO_COTA);
        dialogo.type(IDC_CURVADO_COTA_MINIMA, CotaDelModelo(dialogo, 1, 1));
        dialogo.press(IDOK);
        dialogo.type(IDC_CURVADO_COTA_MINIMA, CotaDelModelo(dialogo, 0.1));
        dialogo.type(IDC_CURVADO_COTA_MAXIMA, CotaDelModelo(dialogo, 0.9));

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
}
