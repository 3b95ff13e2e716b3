#include "sample/Conversacion.h"

#include "cuadros/import/ProyectarDEMDlg.h"

extern const Conversacion conversacionProyectarDEM = {
    .subsistema = L"Import and projection",
    .titulo = L"Projection of the model",
    .raiz = L"ProyectarDEMDlg",
    .ayuda = 150393,
    .abre = [](Terreno& terreno,
               CWnd* padre) { return CProyectarDEMDlg(terreno.proyectarDEM, padre).DoModal(); },
    .ficha = [](const Terreno& terreno) -> Ficha {
        const Cotana::CDataProyectaDEM& data = terreno.proyectarDEM;
        return {
            {L"m_Informe", Valor(data.m_Informe)},
            {L"m_Opcion", Valor(data.m_Opcion)},
            {L"m_Valor", Valor(data.m_Valor)},
            {L"m_Tipo", Valor(data.m_Tipo)},
            {L"m_FicheroProyeccion", Valor(data.m_FicheroProyeccion)},
            {L"m_FicheroInforme", Valor(data.m_FicheroInforme)},
        };
    },
};
