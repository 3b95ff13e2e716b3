#include "sample/Conversacion.h"

#include "cuadros/triangulation/Triangulacion2DDlg.h"

extern const Conversacion conversacionTriangulacion2D = {
    .subsistema = L"Triangulation",
    .titulo = L"Classifications, 2D",
    .raiz = L"Triangulacion2DDlg",
    .abre =
        [](Terreno& terreno, CWnd* padre) {
            DatosTriangulacion2D& datos = terreno.triangulacion2D;
            Cotana::CTriangulacion2DDlg dialogo(terreno.clasificaciones, datos.valor, datos.nombre,
                                                TRUE, padre);
            const INT_PTR resultado = dialogo.DoModal();
            if (resultado == IDOK) {
                datos.seleccion = dialogo.m_Seleccion;
                datos.casilla = dialogo.m_Casilla;
            }
            return resultado;
        },
    .ficha = [](const Terreno& terreno) -> Ficha {
        const DatosTriangulacion2D& datos = terreno.triangulacion2D;
        return {
            {L"clasificaciones", Valor(terreno.clasificaciones)},
            {L"valor", Valor(datos.valor)},
            {L"nombre", Valor(datos.nombre)},
            {L"m_Seleccion", Valor(datos.seleccion)},
            {L"m_Casilla", Valor(datos.casilla)},
        };
    },
};
