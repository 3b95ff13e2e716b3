#include "ReadingOrder.h"
#include "Rules.h"

void checkReadingOrder(const Dialog& dialog, Report& report) {
    std::vector<const Control*> tabOrder;
    std::vector<Readable> readables;
    for (const Control& control : dialog.controls()) {
        if (control.visible()) {
            tabOrder.push_back(&control);
            readables.push_back({control.area, control.isGroupBox()});
        }
    }
    const std::vector<std::size_t> order = readingOrder(readables);
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (order[i] == i)
            continue;
        const Control& read = *tabOrder[order[i]];
        report.add(dialog.place(*tabOrder[i]), L"order",
                   L"comes before " + dialog.place(read).substr(dialog.place().size() + 2) +
                       L" in the tab order, and after it for the eye");
        return; // one finding: what follows the first difference is mostly its consequence
    }
}

void checkClosingButtons(const Dialog& dialog, Report& report) {
    for (const Control& control : dialog.controls()) {
        if (control.isButton(BS_DEFPUSHBUTTON) && control.id != IDOK)
            report.add(dialog.place(control), L"default", L"is a default button; OK is the one");
    }
    if (dialog.isPage())
        return;
    const Control* ok = dialog.find(IDOK);
    const Control* cancel = dialog.find(IDCANCEL);
    if (ok == nullptr || !ok->isButton(BS_DEFPUSHBUTTON))
        report.add(dialog.place(), L"default", L"has no OK button that is the default");
    if (cancel == nullptr || !cancel->isPush() || cancel - 1 != ok)
        report.add(dialog.place(), L"default", L"has no Cancel button right after OK");
}
