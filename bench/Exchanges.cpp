// One exchange between the controls of an open dialog and its record.
#include "bench/SideBySide.h"
#include "bench/Stopwatch.h"

namespace bench {

namespace {

/// So many exchanges are one measured piece: one alone is too short for the clock.
constexpr int batch = 20;

template <class Exchange>
Competitor batchOf(Exchange exchange) {
    return [exchange] {
        const double time = timeOf([&] {
            for (int i = 0; i < batch; ++i)
                exchange(i);
        });
        emptyQueue();
        return time / batch;
    };
}

} // namespace

void measureExchanges(Bench& bench) {
    const Options<CString> sets[] = {someOptions<CString>(), otherOptions<CString>()};
    const Options<std::wstring> setsByHand[] = {someOptions<std::wstring>(),
                                                otherOptions<std::wstring>()};
    SideBySide open(bench.desk);

    bench.report.add("Exchange: controls to record",
                     compare(bench.cycles, batchOf([&](int) { open.dialog.UpdateData(TRUE); }),
                             batchOf([&](int) { open.dialogByHand.read(); })),
                     1.25);
    bench.report.add("Exchange: record to controls, nothing differs",
                     compare(bench.cycles, batchOf([&](int) { open.dialog.UpdateData(FALSE); }),
                             batchOf([&](int) { open.dialogByHand.show(); })),
                     1.25);
    bench.report.add("Exchange: record to controls, everything differs",
                     compare(bench.cycles, batchOf([&](int i) {
                                 open.options = sets[(i + 1) % 2];
                                 open.dialog.UpdateData(FALSE);
                             }),
                             batchOf([&](int i) {
                                 open.optionsByHand = setsByHand[(i + 1) % 2];
                                 open.dialogByHand.show();
                             })));
    open.dialog.UpdateData(TRUE);
    open.dialogByHand.read();
    if (!(open.options == open.optionsByHand))
        bench.fail("the two options dialogs do not read the same");
}

} // namespace bench
