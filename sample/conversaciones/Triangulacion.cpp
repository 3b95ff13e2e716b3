#include "sample/Conversacion.h"

#include "cuadros/triangulation/TriangulacionDlg.h"

extern const Conversacion conversacionTriangulacion = {
    .subsistema = L"Triangulation",
    .titulo = L"Triangulation options",
    .raiz = L"TriangulacionDlg",
    .ayuda = 150083,
    .prepara =
        [](Terreno& terreno) {
            Cotana::CDataTriangulacion& data = terreno.triangulacion;
            if (data.m_Nombre.IsEmpty())
                data.m_Nombre = L"North slope";
            // An accepted dialog leaves only the chosen codes in the record: offer all of them
            // again.
            data.m_Codigos = terreno.codigos;
        },
    .abre =
        [](Terreno& terreno, CWnd* padre) {
            return Cotana::CTriangulacionDlg(terreno.triangulacion, padre).DoModal();
        },
    .ficha = [](const Terreno& terreno) -> Ficha {
        const Cotana::CDataTriangulacion& data = terreno.triangulacion;
        return {
            {L"m_LimiteInferior", Valor(data.m_LimiteInferior)},
            {L"m_LimiteSuperior", Valor(data.m_LimiteSuperior)},
            {L"m_DistanciaNoUnir", Valor(data.m_DistanciaNoUnir)},
            {L"m_ParametroExtra", Valor(data.m_ParametroExtra)},
            {L"m_TipoRuptura", Valor(data.m_TipoRuptura)},
            {L"m_Nombre", Valor(data.m_Nombre)},
            {L"m_Rupturas", Valor(data.m_Rupturas)},
            {L"m_NoUnirCurvas", Valor(data.m_NoUnirCurvas)},
            {L"m_Codigos", Valor(data.m_Codigos)},
            {L"m_CodigosRuptura", Valor(data.m_CodigosRuptura)},
            {L"m_CodigosExtra1", Valor(data.m_CodigosExtra1)},
            {L"m_CodigosExtra2", Valor(data.m_CodigosExtra2)},
        };
    },
};
