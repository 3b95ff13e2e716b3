#include "sample/Conversacion.h"

#include "cuadros/contours/VectoresPendienteDlg.h"

extern const Conversacion conversacionVectoresPendiente = {
    .subsistema = L"Contours and slopes",
    .titulo = L"Slope vectors",
    .raiz = L"VectoresPendienteDlg",
    .ayuda = 151299,
    .abre =
        [](Terreno& terreno, CWnd* padre) {
            return CVectoresPendienteDlg(terreno.vectoresPendiente, nullptr, padre).DoModal();
        },
    .ficha = [](const Terreno& terreno) -> Ficha {
        const Cotana::CDataVectoresPendiente& data = terreno.vectoresPendiente;
        return {
            {L"m_ValorVector1", Valor(data.m_ValorVector1)},
            {L"m_ValorVector2", Valor(data.m_ValorVector2)},
            {L"m_Cadena1", Valor(data.m_Cadena1)},
            {L"m_Cadena2", Valor(data.m_Cadena2)},
            {L"m_TextoValor1", Valor(data.m_TextoValor1)},
            {L"m_TextoEntero", Valor(data.m_TextoEntero)},
            {L"m_FicheroLimite", Valor(data.m_FicheroLimite)},
            {L"m_Limite", Valor(data.m_Limite)},
        };
    },
};
