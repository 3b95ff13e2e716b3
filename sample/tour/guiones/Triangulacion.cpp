#include "sample/tour/Guion.h"

#include "cuadros/resources/TriangulationIds.h"
#include "sample/tour/Filas.h"

static const Guion guionTriangulacion(L"TriangulacionDlg", [](Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: every code takes part.");
        dialogo.help();

        dialogo.type(IDC_TRIANGULACION_NOMBRE, L"North slope, 2nd survey");
        dialogo.type(IDC_TRIANGULACION_LIMITE_INFERIOR, L"900");
        dialogo.type(IDC_TRIANGULACION_LIMITE_SUPERIOR, L"250.5");
        dialogo.press(IDOK);

        dialogo.type(IDC_TRIANGULACION_LIMITE_INFERIOR, L"250.5");
        dialogo.type(IDC_TRIANGULACION_LIMITE_SUPERIOR, L"900");
        dialogo.check(IDC_TRIANGULACION_NO_UNIR_CURVAS);
        dialogo.type(IDC_TRIANGULACION_DISTANCIA_NO_UNIR, L"12.5");
        dialogo.check(IDC_TRIANGULACION_TIPO_RUPTURA_2);

        // The ground takes part, and what bounds it; breaklines are those that are named so.
        kit::ListView codigos = dialogo.list(IDC_TRIANGULACION_CODIGOS);
        Quita(codigos, Filas(codigos, {L"POL-E", L"POL-T", L"MHC", L"HYD", L"GUL", L"MRK-G"}));
        dialogo.press(IDC_TRIANGULACION_NINGUNA_RUPTURA);
        kit::ListView rupturas = dialogo.list(IDC_TRIANGULACION_RUPTURAS);
        for (const int fila : Filas(rupturas, {L"BRK-T", L"BRK-B", L"BRK-S", L"RDG", L"VAL"}))
            rupturas.click(fila, kit::Held::Ctrl);
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
    visita.Guion().expectMessage().inspect([&visita](kit::MessageDialog& aviso) {
        visita.Fotografia(aviso.handle(), L"The lower limit was above the upper one.");
    });
});
