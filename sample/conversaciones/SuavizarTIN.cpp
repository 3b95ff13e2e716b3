#include "sample/conversaciones/SuavizarTIN.h"

#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/SuavizarTINDlg.h"

void PreparaSuavizarTIN(Terreno&) {}

INT_PTR AbreSuavizarTIN(Terreno& terreno, CWnd* padre) {
    return CSuavizarTINDlg(terreno.suavizado, padre).DoModal();
}

Ficha FichaSuavizarTIN(const Terreno& terreno) {
    const Cotana::CDataSuavizarTIN& data = terreno.suavizado;
    return {
        {L"m_Factor", Valor(data.m_Factor)},
        {L"m_Iterar", Valor(data.m_Iterar)},
        {L"m_Iteraciones", Valor(data.m_Iteraciones)},
    };
}

void ConduceSuavizarTIN(Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the network is smoothed once.");
        dialogo.help();
        dialogo.type(IDC_SUAVIZAR_TIN_FACTOR, L"0.25");
        dialogo.check(IDC_SUAVIZAR_TIN_ITERAR);
        dialogo.type(IDC_SUAVIZAR_TIN_ITERACIONES, L"3");
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
}
