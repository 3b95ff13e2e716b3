// The imports: a grid whose nodes are counted at each key, a tile with thirty texts.
#include "bench/Sections.h"
#include "bench/Stopwatch.h"
#include "bench/Surveys.h"
#include "bench/raw/GridDialog.h"
#include "cuadros/import/ImportarGTOPO30Dlg.h"
#include "cuadros/import/ImportarGridDlg.h"
#include "cuadros/resources/ImportIds.h"

namespace bench {

namespace {

void setExtents(CDataImportarGrid& data, double x, double y, double width, double height,
                double spacing) {
    data.m_ExtensionFichero.m_Minimo = {x, y, 0, 0};
    data.m_ExtensionFichero.m_Maximo = {x + width, y + height, 0, 0};
    data.m_Extension = data.m_ExtensionFichero;
    data.m_Paso = {spacing, spacing, 0, 0};
}

/// A digit behind the text of an edit and its removal, several times: each key counts anew, and
/// changes the count. The time of one key.
Competitor keysInto(HWND dialog) {
    return [edit = GetDlgItem(dialog, IDC_IMPORTAR_GRID_X_MINIMA)] {
        constexpr int pairs = 10;
        const int end = GetWindowTextLengthW(edit);
        SendMessageW(edit, EM_SETSEL, static_cast<WPARAM>(end), end);
        const double time = timeOf([&] {
            for (int i = 0; i < pairs; ++i) {
                SendMessageW(edit, WM_CHAR, L'5', 0);
                SendMessageW(edit, WM_CHAR, L'\b', 0);
            }
        });
        emptyQueue();
        return time / (2 * pairs);
    };
}

void measureGrid(Bench& bench) {
    CDataImportarGrid data;
    setExtents(data, 437200, 4486300, 12000, 9000, 10);
    data.m_PuntosFichero = 1200 * 900;
    CDataImportarGrid dataByHand = data;
    CImportarGridDlg dialog(data);
    dialog.Create(IDD_IMPORTAR_GRID);
    raw::GridDialog dialogByHand(dataByHand, textModule());
    const HWND byHand = dialogByHand.create(bench.desk.window());
    RECT place;
    GetWindowRect(dialog.m_hWnd, &place);
    constexpr UINT flags = SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW;
    SetWindowPos(dialog.m_hWnd, nullptr, 0, 0, 0, 0, flags);
    SetWindowPos(byHand, nullptr, 0, place.bottom - place.top, 0, 0, flags);
    emptyQueue();
    bench.report.add("Key: nodes of a grid counted anew",
                     compare(bench.cycles, keysInto(dialog.m_hWnd), keysInto(byHand)));

    for (const HWND window : {dialog.m_hWnd, byHand})
        SendDlgItemMessageW(window, IDC_IMPORTAR_GRID_X_MINIMA, WM_CHAR, L'5', 0);
    if (data.m_PuntosImportar != 1199 * 900 || dataByHand.m_PuntosImportar != 1199 * 900)
        bench.fail("the two dialogs of the grid do not count the same");
    dialog.DestroyWindow();
    DestroyWindow(byHand);
}

void measureTile(Bench& bench) {
    CDataImportarGTOPO30 asked;
    setExtents(asked, -20, 40, 40, 50, 1.0 / 120);
    asked.m_PuntosFichero = 4800 * 6000;
    CDataImportarGTOPO30 data;
    const Timing timing = measure(bench.cycles, [&] {
        data = asked;
        return timeOf([&] { CImportarGTOPO30Dlg(data, SW_SHOWNORMAL).DoModal(); });
    });
    if (data.m_Huso != 31 || data.m_Elipsoide.GetIndice() != 26)
        bench.fail("the dialog of the tile was not accepted");
    bench.report.add("Cycle: GTOPO30 tile", timing);
}

} // namespace

void measureImports(Bench& bench) {
    measureGrid(bench);
    measureTile(bench);
}

} // namespace bench
