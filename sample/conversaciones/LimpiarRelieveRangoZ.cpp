#include "sample/Conversacion.h"

#include "cuadros/triangulation/LimpiarRelieveRangoZDlg.h"

extern const Conversacion conversacionLimpiarRelieveRangoZ = {
    .subsistema = L"Triangulation",
    .titulo = L"Cleaning by elevation",
    .raiz = L"LimpiarRelieveRangoZDlg",
    .ayuda = 150139,
    .abre =
        [](Terreno& terreno, CWnd* padre) {
            return Cotana::CLimpiarRelieveRangoZDlg(terreno.limpiezaRangoZ, padre).DoModal();
        },
    .ficha = [](const Terreno& terreno) -> Ficha {
        const Cotana::CDataLimpiarRelieveRangoZ& data = terreno.limpiezaRangoZ;
        return {
            {L"m_ValorA", Valor(data.m_ValorA)},
            {L"m_ValorB", Valor(data.m_ValorB)},
        };
    },
};
