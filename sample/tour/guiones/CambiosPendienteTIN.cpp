#include "sample/tour/Guion.h"

#include "cuadros/resources/ContoursIds.h"

static const Guion guionCambiosPendienteTIN(L"CambiosPendienteTINDlg", [](Visita& visita) {
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
});
