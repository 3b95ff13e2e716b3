#include "sample/Conversacion.h"

#include "cuadros/contours/CambiosPendienteTINDlg.h"

extern const Conversacion conversacionCambiosPendienteTIN = {
    .subsistema = L"Contours and slopes",
    .titulo = L"Slope changes",
    .raiz = L"CambiosPendienteTINDlg",
    .ayuda = 151185,
    .abre =
        [](Terreno& terreno, CWnd* padre) {
            return CCambiosPendienteTINDlg(terreno.cambiosPendiente, padre).DoModal();
        },
    .ficha = [](const Terreno& terreno) -> Ficha {
        const Cotana::CDataCambiosPendiente& data = terreno.cambiosPendiente;
        return {
            {L"m_EnteroCambio", Valor(data.m_EnteroCambio)},
            {L"m_CadenaCambio", Valor(data.m_CadenaCambio)},
            {L"m_ValorCambio", Valor(data.m_ValorCambio)},
            {L"m_GenerarDibujo1", Valor(data.m_GenerarDibujo1)},
            {L"m_GenerarDibujo2", Valor(data.m_GenerarDibujo2)},
        };
    },
};
