#include "sample/conversaciones/VectoresPendiente.h"

#include "cuadros/contours/VectoresPendienteDlg.h"
#include "cuadros/resources/ContoursIds.h"
#include "sample/conversaciones/PreguntaFicheros.h"

void PreparaVectoresPendiente(Terreno&) {}

INT_PTR AbreVectoresPendiente(Terreno& terreno, CWnd* padre) {
    return CVectoresPendienteDlg(terreno.vectoresPendiente, nullptr, padre).DoModal();
}

Ficha FichaVectoresPendiente(const Terreno& terreno) {
    const Cotana::CDataVectoresPendiente& data = terreno.vectoresPendiente;
    return {
        {L"m_ValorVector1", Valor(data.m_ValorVector1)},
        {L"m_ValorVector2", Valor(data.m_ValorVector2)},
        {L"m_Cadena1", Valor(data.m_Cadena1)},
        {L"m_Cadena2", Valor(data.m_Cadena2)},
        {L"m_TextoValor1", Valor(data.m_TextoValor1)},
        {L"m_TextoEntero", Valor(data.m_TextoEntero)},
        {L"m_FicheroLimite", Valor(data.m_FicheroLimite)},
        {L"m_Limite", Valor(data.m_Limite)},
    };
}

void ConduceVectoresPendiente(Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the whole model is drawn.");
        dialogo.help();
        dialogo.type(IDC_VECTORES_PENDIENTE_VALOR_1, L"25");
        dialogo.type(IDC_VECTORES_PENDIENTE_TEXTO_VALOR_1, L"1.8");
        dialogo.check(IDC_VECTORES_PENDIENTE_LIMITE);
        dialogo.press(IDOK);

        dialogo.press(IDC_VECTORES_PENDIENTE_BUSCAR);
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
    visita.Guion().expectMessage().inspect([&visita](kit::MessageDialog& aviso) {
        visita.Fotografia(aviso.handle(), L"The boundary had no file.");
    });
    RespondePregunta(visita, {L"hills.dxf"});
}
