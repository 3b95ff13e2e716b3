#include "sample/Conversacion.h"

#include "cuadros/contours/CurvadoTriangulacionDlg.h"

extern const Conversacion conversacionCurvadoTriangulacion = {
    .subsistema = L"Contours and slopes",
    .titulo = L"Contours from a triangulation",
    .raiz = L"CurvadoTriangulacionDlg",
    .abre =
        [](Terreno& terreno, CWnd* padre) {
            DatosCurvadoTriangulacion& datos = terreno.curvadoTriangulacion;
            Cotana::CCurvadoTriangulacionDlg dialogo(datos.equidistancia, datos.cadena, padre);
            const INT_PTR resultado = dialogo.DoModal();
            if (resultado == IDOK) {
                datos.equidistancia = dialogo.m_Equidistancia;
                datos.cadena = dialogo.m_Cadena;
            }
            return resultado;
        },
    .ficha = [](const Terreno& terreno) -> Ficha {
        const DatosCurvadoTriangulacion& datos = terreno.curvadoTriangulacion;
        return {
            {L"m_Equidistancia", Valor(datos.equidistancia)},
            {L"m_Cadena", Valor(datos.cadena)},
        };
    },
};
