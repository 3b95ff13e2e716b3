#include "sample/Conversacion.h"

#include "cuadros/import/ImportarGridDlg.h"
#include "sample/ImportaTerreno.h"

extern const Conversacion conversacionImportarGrid = {
    .subsistema = L"Import and projection",
    .titulo = L"Elevation grid",
    .raiz = L"ImportarGridDlg",
    .ayuda = 145125,
    .abre =
        [](Terreno& terreno, CWnd* padre) {
            CDataImportarGrid& data = terreno.importarGrid;
            // The nodes lie where they lie: a spacing that was typed, or shown with three
            // decimals, is not theirs.
            const Cotana::CCoor3D<double> paso = data.m_Paso;
            const INT_PTR resultado = CImportarGridDlg(data, padre).DoModal();
            data.m_Paso = paso;
            return resultado;
        },
    .ficha = [](const Terreno& terreno) -> Ficha {
        const CDataImportarGrid& data = terreno.importarGrid;
        return {
            {L"m_ExtensionFichero", Valor(data.m_ExtensionFichero)},
            {L"m_Extension", Valor(data.m_Extension)},
            {L"m_Paso", Valor(data.m_Paso)},
            {L"m_Razon", Valor(data.m_Razon)},
            {L"m_PuntosFichero", Valor(data.m_PuntosFichero)},
            {L"m_PuntosImportar", Valor(data.m_PuntosImportar)},
            {L"m_NoData", Valor(data.m_NoData)},
        };
    },
    .ejecuta = ImportaRejilla,
};
