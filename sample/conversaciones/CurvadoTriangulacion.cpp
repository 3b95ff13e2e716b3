#include "sample/conversaciones/CurvadoTriangulacion.h"

#include "cuadros/contours/CurvadoTriangulacionDlg.h"
#include "cuadros/resources/ContoursIds.h"

void PreparaCurvadoTriangulacion(Terreno&) {}

INT_PTR AbreCurvadoTriangulacion(Terreno& terreno, CWnd* padre) {
    DatosCurvadoTriangulacion& datos = terreno.curvadoTriangulacion;
    Cotana::CCurvadoTriangulacionDlg dialogo(datos.equidistancia, datos.cadena, padre);
    const INT_PTR resultado = dialogo.DoModal();
    if (resultado == IDOK) {
        datos.equidistancia = dialogo.m_Equidistancia;
        datos.cadena = dialogo.m_Cadena;
    }
    return resultado;
}

Ficha FichaCurvadoTriangulacion(const Terreno& terreno) {
    const DatosCurvadoTriangulacion& datos = terreno.curvadoTriangulacion;
    return {
        {L"m_Equidistancia", Valor(datos.equidistancia)},
        {L"m_Cadena", Valor(datos.cadena)},
    };
}

void ConduceCurvadoTriangulacion(Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the contours have no code yet.");
        dialogo.type(IDC_CURVADO_TRIANGULACION_EQUIDISTANCIA, L"2.5");
        dialogo.press(IDOK);

        dialogo.type(IDC_CURVADO_TRIANGULACION_CADENA, L"CN");
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
    visita.Guion().expectMessage().inspect([&visita](kit::MessageDialog& aviso) {
        visita.Fotografia(aviso.handle(), L"The code was missing.");
    });
}
