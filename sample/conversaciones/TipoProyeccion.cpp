#include "sample/Conversacion.h"

#include "cuadros/import/TipoProyeccionDlg.h"

extern const Conversacion conversacionTipoProyeccion = {
    .subsistema = L"Import and projection",
    .titulo = L"Projection type",
    .raiz = L"TipoProyeccionDlg",
    .ayuda = 145391,
    .abre = [](Terreno& terreno,
               CWnd* padre) { return CTipoProyeccionDlg(terreno.tipoProyeccion, padre).DoModal(); },
    .ficha = [](const Terreno& terreno) -> Ficha {
        const Cotana::CDataTipoProyeccion& data = terreno.tipoProyeccion;
        return {
            {L"m_Proyeccion1", Valor(data.m_Proyeccion1)},
            {L"m_Proyeccion2", Valor(data.m_Proyeccion2)},
        };
    },
};
