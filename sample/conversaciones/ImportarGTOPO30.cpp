#include "sample/Conversacion.h"

#include "cuadros/import/ImportarGTOPO30Dlg.h"
#include "sample/ImportaTerreno.h"

extern const Conversacion conversacionImportarGTOPO30 = {
    .subsistema = L"Import and projection",
    .titulo = L"GTOPO30 tile",
    .raiz = L"ImportarGTOPO30Dlg",
    .ayuda = 145115,
    .abre =
        [](Terreno& terreno, CWnd* padre) {
            return CImportarGTOPO30Dlg(terreno.importarGTOPO30, SW_SHOWNORMAL, padre).DoModal();
        },
    .ficha = [](const Terreno& terreno) -> Ficha {
        const CDataImportarGTOPO30& data = terreno.importarGTOPO30;
        return {
            {L"m_ExtensionFichero", Valor(data.m_ExtensionFichero)},
            {L"m_Extension", Valor(data.m_Extension)},
            {L"m_Paso", Valor(data.m_Paso)},
            {L"m_Razon", Valor(data.m_Razon)},
            {L"m_PuntosFichero", Valor(data.m_PuntosFichero)},
            {L"m_PuntosImportar", Valor(data.m_PuntosImportar)},
            {L"m_NoData", Valor(data.m_NoData)},
            {L"m_Elipsoide", Valor(data.m_Elipsoide.GetNombre())},
            {L"m_Huso", Valor(data.m_Huso)},
            {L"m_TipoProyeccion", Valor(data.m_TipoProyeccion)},
        };
    },
    .ejecuta = ImportaTesela,
};
