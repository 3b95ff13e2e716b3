#include "sample/Conversacion.h"

#include "cuadros/triangulation/Triangulacion3DDiscoDlg.h"

extern const Conversacion conversacionTriangulacion3DDisco = {
    .subsistema = L"Triangulation",
    .titulo = L"Several files",
    .raiz = L"Triangulacion3DDiscoDlg",
    .abre =
        [](Terreno& terreno, CWnd* padre) {
            DatosTriangulacion3DDisco& datos = terreno.triangulacion3DDisco;
            return Cotana::CTriangulacion3DDiscoDlg(datos.ficheros, nullptr, datos.valor,
                                                    datos.opcion, padre)
                .DoModal();
        },
    .ficha = [](const Terreno& terreno) -> Ficha {
        const DatosTriangulacion3DDisco& datos = terreno.triangulacion3DDisco;
        return {
            {L"ficheros", Valor(datos.ficheros)},
            {L"valor", Valor(datos.valor)},
            {L"opcion", Valor(datos.opcion)},
        };
    },
};
