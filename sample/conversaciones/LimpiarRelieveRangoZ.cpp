#include "sample/conversaciones/LimpiarRelieveRangoZ.h"

#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/LimpiarRelieveRangoZDlg.h"

void PreparaLimpiarRelieveRangoZ(Terreno&) {}

INT_PTR AbreLimpiarRelieveRangoZ(Terreno& terreno, CWnd* padre) {
    return Cotana::CLimpiarRelieveRangoZDlg(terreno.limpiezaRangoZ, padre).DoModal();
}

Ficha FichaLimpiarRelieveRangoZ(const Terreno& terreno) {
    const Cotana::CDataLimpiarRelieveRangoZ& data = terreno.limpiezaRangoZ;
    return {
        {L"m_ValorA", Valor(data.m_ValorA)},
        {L"m_ValorB", Valor(data.m_ValorB)},
    };
}

void ConduceLimpiarRelieveRangoZ(Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the elevations that stay.");
        dialogo.help();
        dialogo.type(IDC_LIMPIAR_RELIEVE_RANGO_Z_VALOR_A, L"580");
        dialogo.type(IDC_LIMPIAR_RELIEVE_RANGO_Z_VALOR_B, L"740.126");
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
}
