#include "sample/Conversacion.h"

#include "cuadros/triangulation/GenerarCasesDlg.h"

extern const Conversacion conversacionGenerarCases = {
    .subsistema = L"Triangulation",
    .titulo = L"Case generation",
    .raiz = L"GenerarCasesDlg",
    .abre =
        [](Terreno& terreno, CWnd* padre) {
            DatosGenerarCases& datos = terreno.generarCases;
            return Cotana::CGenerarCasesDlg(datos.ficheros, nullptr, datos.valor, padre).DoModal();
        },
    .ficha = [](const Terreno& terreno) -> Ficha {
        const DatosGenerarCases& datos = terreno.generarCases;
        return {
            {L"ficheros", Valor(datos.ficheros)},
            {L"valor", Valor(datos.valor)},
        };
    },
};
