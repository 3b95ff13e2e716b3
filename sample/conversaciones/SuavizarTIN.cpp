#include "sample/Conversacion.h"

#include "cuadros/triangulation/SuavizarTINDlg.h"

extern const Conversacion conversacionSuavizarTIN = {
    .subsistema = L"Triangulation",
    .titulo = L"Smoothing",
    .raiz = L"SuavizarTINDlg",
    .ayuda = 151186,
    .abre = [](Terreno& terreno,
               CWnd* padre) { return CSuavizarTINDlg(terreno.suavizado, padre).DoModal(); },
    .ficha = [](const Terreno& terreno) -> Ficha {
        const Cotana::CDataSuavizarTIN& data = terreno.suavizado;
        return {
            {L"m_Factor", Valor(data.m_Factor)},
            {L"m_Iterar", Valor(data.m_Iterar)},
            {L"m_Iteraciones", Valor(data.m_Iteraciones)},
        };
    },
};
