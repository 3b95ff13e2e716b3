// Filling a list of two columns in an open dialog.
#include "bench/ListFill.h"
#include "bench/SideBySide.h"
#include "bench/Stopwatch.h"

namespace bench {

void measureLists(Bench& bench) {
    SideBySide open(bench.desk);
    auto& list = *static_cast<CListCtrl*>(open.dialog.GetDlgItem(IDC_LAYERS));
    const HWND listByHand = open.dialogByHand.layers();

    for (const int number : {100, 1000, 10000}) {
        const std::vector<LayerRow> rows = layerRows(number);
        const auto emptied = [](HWND filled) {
            SendMessageW(filled, LVM_DELETEALLITEMS, 0, 0);
            emptyQueue();
        };
        const auto framework = [&] {
            emptied(list.m_hWnd);
            return timeOf([&] { fill(list, rows); });
        };
        const auto raw = [&] {
            emptied(listByHand);
            return timeOf([&] { raw::fill(listByHand, rows); });
        };
        bench.report.add("List: " + std::to_string(number) + " rows",
                         compare(bench.cycles, framework, raw), 1.15);
        if (list.GetItemCount() != number)
            bench.fail("a list was not filled");
    }
}

} // namespace bench
