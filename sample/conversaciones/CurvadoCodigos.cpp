#include "sample/Conversacion.h"

#include "cuadros/contours/CurvadoCodigosDlg.h"

extern const Conversacion conversacionCurvadoCodigos = {
    .subsistema = L"Contours and slopes",
    .titulo = L"Contour codes",
    .raiz = L"CurvadoCodigosDlg",
    .ayuda = 151074,
    .abre =
        [](Terreno& terreno, CWnd* padre) {
            Cotana::CDataCurvado& data = terreno.curvado;
            return CCurvadoCodigosDlg(data.m_CodigoCurvas1, data.m_CodigoCurvas2,
                                      data.m_CodigoCurvas3, data.m_CodigoCurvas4,
                                      data.m_CodigoCurvas5, padre)
                .DoModal();
        },
    .ficha = [](const Terreno& terreno) -> Ficha {
        const Cotana::CDataCurvado& data = terreno.curvado;
        return {
            {L"m_CodigoCurvas1", Valor(data.m_CodigoCurvas1)},
            {L"m_CodigoCurvas2", Valor(data.m_CodigoCurvas2)},
            {L"m_CodigoCurvas3", Valor(data.m_CodigoCurvas3)},
            {L"m_CodigoCurvas4", Valor(data.m_CodigoCurvas4)},
            {L"m_CodigoCurvas5", Valor(data.m_CodigoCurvas5)},
        };
    },
};
