#include "sample/conversaciones/LimpiarRelieve.h"

#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/LimpiarRelieveDlg.h"

void PreparaLimpiarRelieve(Terreno&) {}

INT_PTR AbreLimpiarRelieve(Terreno& terreno, CWnd* padre) {
    return Cotana::CLimpiarRelieveDlg(terreno.limpieza, padre).DoModal();
}

Ficha FichaLimpiarRelieve(const Terreno& terreno) {
    const Cotana::CDataLimpiarRelieve& data = terreno.limpieza;
    return {
        {L"m_ValorA", Valor(data.m_ValorA)},
        {L"m_ValorB", Valor(data.m_ValorB)},
    };
}

void ConduceLimpiarRelieve(Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(),
                          L"As it opens: how far a point may stand out from its surroundings.");
        dialogo.help();
        dialogo.type(IDC_LIMPIAR_RELIEVE_VALOR_A, L"7.5");
        dialogo.type(IDC_LIMPIAR_RELIEVE_VALOR_B, L"0.345");
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
}
