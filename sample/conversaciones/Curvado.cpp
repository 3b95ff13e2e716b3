#include "sample/Conversacion.h"

#include "cuadros/contours/CurvadoDlg.h"
#include "sample/DibujoCurvas.h"

extern const Conversacion conversacionCurvado = {
    .subsistema = L"Contours and slopes",
    .titulo = L"Contour options",
    .raiz = L"CurvadoDlg",
    .ayuda = 151165,
    .prepara =
        [](Terreno& terreno) {
            Cotana::CDataCurvado& data = terreno.curvado;
            if (data.m_RangoCota)
                return;
            // A range that the user has not asked for yet is the whole model.
            data.m_CotaMinima = terreno.modelo.Lowest();
            data.m_CotaMaxima = terreno.modelo.Highest();
        },
    .abre =
        [](Terreno& terreno, CWnd* padre) {
            CCurvadoDlg dialogo(terreno.curvado, nullptr, terreno.modelo.Lowest(),
                                terreno.modelo.Highest(), SW_SHOWNORMAL, padre);
            return dialogo.DoModal();
        },
    .ficha = [](const Terreno& terreno) -> Ficha {
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
    },
    .ejecuta = DibujaCurvas,
};
