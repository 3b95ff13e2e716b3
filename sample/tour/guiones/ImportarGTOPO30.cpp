#include "sample/tour/Guion.h"

#include "cuadros/resources/ImportIds.h"

static const Guion guionImportarGTOPO30(L"ImportarGTOPO30Dlg", [](Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the whole tile is imported.");
        dialogo.help();
        // Beyond any tile: what is outside of it does not count.
        dialogo.type(IDC_IMPORTAR_GTOPO30_Y_MAXIMA_G, L"90");
        dialogo.type(IDC_IMPORTAR_GTOPO30_Y_MAXIMA_M, L"0");
        dialogo.type(IDC_IMPORTAR_GTOPO30_Y_MAXIMA_S, L"0");
        dialogo.type(IDC_IMPORTAR_GTOPO30_RAZON, L"2");
        dialogo.choose(IDC_IMPORTAR_GTOPO30_ELIPSOIDE, L"Internacional (Hayford)");
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
});
