#include "sample/conversaciones/Triangulacion3D.h"

#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/Triangulacion3DDlg.h"

void PreparaTriangulacion3D(Terreno&) {}

INT_PTR AbreTriangulacion3D(Terreno& terreno, CWnd* padre) {
    DatosTriangulacion3D& datos = terreno.triangulacion3D;
    Cotana::CTriangulacion3DDlg dialogo(terreno.clasificaciones, datos.valor, datos.entero, TRUE,
                                        padre);
    const INT_PTR resultado = dialogo.DoModal();
    if (resultado == IDOK) {
        datos.seleccion = dialogo.m_Seleccion;
        datos.casilla = dialogo.m_Casilla;
    }
    return resultado;
}

Ficha FichaTriangulacion3D(const Terreno& terreno) {
    const DatosTriangulacion3D& datos = terreno.triangulacion3D;
    return {
        {L"clasificaciones", Valor(terreno.clasificaciones)},
        {L"valor", Valor(datos.valor)},
        {L"entero", Valor(datos.entero)},
        {L"m_Seleccion", Valor(datos.seleccion)},
        {L"m_Casilla", Valor(datos.casilla)},
    };
}

void ConduceTriangulacion3D(Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the first classification is chosen.");
        dialogo.type(IDC_TRIANGULACION_3D_VALOR, L"0.75");
        dialogo.check(IDC_TRIANGULACION_3D_ENTERO);
        // Everything but what no terrain model wants.
        dialogo.press(IDC_TRIANGULACION_3D_TODAS);
        kit::ListView lista = dialogo.list(IDC_TRIANGULACION_3D_CLASIFICACIONES);
        for (const wchar_t* ruido : {L"Low point (noise)", L"High noise"})
            lista.click(lista.find(ruido, 1), kit::Held::Ctrl);
        visita.Fotografia(dialogo.handle(), L"All but the noise, right before OK.");
        dialogo.press(IDOK);
    });
}
