#include "sample/Conversacion.h"

#include "cuadros/triangulation/LimpiarRelieveDlg.h"

extern const Conversacion conversacionLimpiarRelieve = {
    .subsistema = L"Triangulation",
    .titulo = L"Cleaning",
    .raiz = L"LimpiarRelieveDlg",
    .ayuda = 150073,
    .abre =
        [](Terreno& terreno, CWnd* padre) {
            return Cotana::CLimpiarRelieveDlg(terreno.limpieza, padre).DoModal();
        },
    .ficha = [](const Terreno& terreno) -> Ficha {
        const Cotana::CDataLimpiarRelieve& data = terreno.limpieza;
        return {
            {L"m_ValorA", Valor(data.m_ValorA)},
            {L"m_ValorB", Valor(data.m_ValorB)},
        };
    },
};
