#include "sample/tour/Guion.h"

#include "cuadros/resources/ImportIds.h"

static const Guion guionImportarGrid(L"ImportarGridDlg", [](Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: the whole file is imported.");
        dialogo.help();
        const double oeste = std::stod(dialogo.text(IDC_IMPORTAR_GRID_FICHERO_X_MINIMA));
        const double este = std::stod(dialogo.text(IDC_IMPORTAR_GRID_FICHERO_X_MAXIMA));
        CString medio;
        medio.Format(L"%.3f", (oeste + este) / 2);
        dialogo.type(IDC_IMPORTAR_GRID_X_MINIMA, medio.GetString());
        dialogo.type(IDC_IMPORTAR_GRID_RAZON, L"2");
        visita.Fotografia(dialogo.handle(),
                          L"The eastern half, every second node: each key counted them.");
        dialogo.press(IDOK);
    });
});
