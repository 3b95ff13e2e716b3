#include "sample/conversaciones/GenerarCases.h"

#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/GenerarCasesDlg.h"
#include "sample/conversaciones/PreguntaFicheros.h"

void PreparaGenerarCases(Terreno&) {}

INT_PTR AbreGenerarCases(Terreno& terreno, CWnd* padre) {
    DatosGenerarCases& datos = terreno.generarCases;
    return Cotana::CGenerarCasesDlg(datos.ficheros, nullptr, datos.valor, padre).DoModal();
}

Ficha FichaGenerarCases(const Terreno& terreno) {
    const DatosGenerarCases& datos = terreno.generarCases;
    return {
        {L"ficheros", Valor(datos.ficheros)},
        {L"valor", Valor(datos.valor)},
    };
}

void ConduceGenerarCases(Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the list is empty, and OK waits.");
        dialogo.drop({NubeDePuntos(L"sheet-0413.xyz"), NubeDePuntos(L"sheet-0412.xyz")});
        dialogo.press(IDC_GENERAR_CASES_SUMAR);
        dialogo.type(IDC_GENERAR_CASES_VALOR, L"250");
        visita.Fotografia(dialogo.handle(), L"Two files were dropped, one was added.");
        dialogo.press(IDOK);
    });
    RespondePregunta(visita, {L"river bank.xyz"});
}
