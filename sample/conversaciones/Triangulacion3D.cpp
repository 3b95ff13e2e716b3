#include "sample/Conversacion.h"

#include "cuadros/triangulation/Triangulacion3DDlg.h"

extern const Conversacion conversacionTriangulacion3D = {
    .subsistema = L"Triangulation",
    .titulo = L"Classifications, 3D",
    .raiz = L"Triangulacion3DDlg",
    .abre =
        [](Terreno& terreno, CWnd* padre) {
            DatosTriangulacion3D& datos = terreno.triangulacion3D;
            Cotana::CTriangulacion3DDlg dialogo(terreno.clasificaciones, datos.valor, datos.entero,
                                                TRUE, padre);
            const INT_PTR resultado = dialogo.DoModal();
            if (resultado == IDOK) {
                datos.seleccion = dialogo.m_Seleccion;
                datos.casilla = dialogo.m_Casilla;
            }
            return resultado;
        },
    .ficha = [](const Terreno& terreno) -> Ficha {
        const DatosTriangulacion3D& datos = terreno.triangulacion3D;
        return {
            {L"clasificaciones", Valor(terreno.clasificaciones)},
            {L"valor", Valor(datos.valor)},
            {L"entero", Valor(datos.entero)},
            {L"m_Seleccion", Valor(datos.seleccion)},
            {L"m_Casilla", Valor(datos.casilla)},
        };
    },
};
