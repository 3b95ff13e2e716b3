#include "sample/conversaciones/Triangulacion2D.h"

#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/Triangulacion2DDlg.h"

void PreparaTriangulacion2D(Terreno&) {}

INT_PTR AbreTriangulacion2D(Terreno& terreno, CWnd* padre) {
    DatosTriangulacion2D& datos = terreno.triangulacion2D;
    Cotana::CTriangulacion2DDlg dialogo(terreno.clasificaciones, datos.valor, datos.nombre, TRUE,
                                        padre);
    const INT_PTR resultado = dialogo.DoModal();
    if (resultado == IDOK) {
        datos.seleccion = dialogo.m_Seleccion;
        datos.casilla = dialogo.m_Casilla;
    }
    return resultado;
}

Ficha FichaTriangulacion2D(const Terreno& terreno) {
    const DatosTriangulacion2D& datos = terreno.triangulacion2D;
    return {
        {L"clasificaciones", Valor(terreno.clasificaciones)},
        {L"valor", Valor(datos.valor)},
        {L"nombre", Valor(datos.nombre)},
        {L"m_Seleccion", Valor(datos.seleccion)},
        {L"m_Casilla", Valor(datos.casilla)},
    };
}

void ConduceTriangulacion2D(Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the first classification is chosen.");
        dialogo.type(IDC_TRIANGULACION_2D_VALOR, L"2.5");
        dialogo.type(IDC_TRIANGULACION_2D_NOMBRE, L"Valley floor");
        kit::ListView lista = dialogo.list(IDC_TRIANGULACION_2D_CLASIFICACIONES);
        lista.choose({lista.find(L"Road surface", 1), lista.find(L"Ground", 1)});
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
}
