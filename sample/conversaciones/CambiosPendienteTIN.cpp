#include "sample/conversaciones/CambiosPendienteTIN.h"

#include "cuadros/contours/CambiosPendienteTINDlg.h"
#include "cuadros/resources/ContoursIds.h"

void PreparaCambiosPendienteTIN(Terreno&) {}

INT_PTR AbreCambiosPendienteTIN(Terreno& terreno, CWnd* padre) {
    return CCambiosPendienteTINDlg(terreno.cambiosPendiente, padre).DoModal();
}

Ficha FichaCambiosPendienteTIN(const Terreno& terreno) {
    const Cotana::CDataCambiosPendiente& data = terreno.cambiosPendiente;
    return {
        {L"m_EnteroCambio", Valor(data.m_EnteroCambio)},
        {L"m_CadenaCambio", Valor(data.m_CadenaCambio)},
        {L"m_ValorCambio", Valor(data.m_ValorCambio)},
        {L"m_GenerarDibujo1", Valor(data.m_GenerarDibujo1)},
        {L"m_GenerarDibujo2", Valor(data.m_GenerarDibujo2)},
    };
}

void ConduceCambiosPendienteTIN(Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: both drawings are made.");
        dialogo.help();
        dialogo.check(IDC_CAMBIOS_PENDIENTE_TIN_DIBUJO_1, false);
        dialogo.check(IDC_CAMBIOS_PENDIENTE_TIN_DIBUJO_2, false);
        visita.Fotografia(dialogo.handle(), L"Without a drawing there is no OK.");

        dialogo.check(IDC_CAMBIOS_PENDIENTE_TIN_DIBUJO_2);
        dialogo.type(IDC_CAMBIOS_PENDIENTE_TIN_VALOR, L"12.5");
        dialogo.type(IDC_CAMBIOS_PENDIENTE_TIN_CADENA, L"SLC-V");
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
}
