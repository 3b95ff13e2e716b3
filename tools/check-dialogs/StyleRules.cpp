#include "Rules.h"

#include <commctrl.h>

namespace {

bool startsGroup(const Control& control) {
    return (control.style & WS_GROUP) != 0;
}

} // namespace

void checkRadioGroups(const Dialog& dialog, Report& report) {
    const Control* last = nullptr;
    for (const Control& control : dialog.controls()) {
        if (control.isRadio()) {
            if (!control.isButton(BS_AUTORADIOBUTTON))
                report.add(dialog.place(control), L"radio", L"is not an AUTORADIOBUTTON");
            if ((last == nullptr || !last->isRadio()) && !startsGroup(control))
                report.add(dialog.place(control), L"radio",
                           L"is the first of its group and lacks WS_GROUP");
        } else if (last != nullptr && last->isRadio() && !startsGroup(control)) {
            report.add(dialog.place(control), L"radio",
                       L"follows a group of radio buttons and lacks WS_GROUP");
        }
        last = &control;
    }
}

void checkStyles(const Dialog& dialog, Report& report) {
    for (const Control& control : dialog.controls()) {
        const auto require = [&](bool condition, const wchar_t* text) {
            if (!condition)
                report.add(dialog.place(control), L"style", text);
        };
        const auto has = [&](DWORD style) { return (control.style & style) == style; };
        const auto hasAny = [&](DWORD style) { return (control.style & style) != 0; };

        if (control.is(WC_LISTVIEWW)) {
            require((control.style & LVS_TYPEMASK) == LVS_REPORT, L"is not in LVS_REPORT view");
            require(has(LVS_SHOWSELALWAYS), L"lacks LVS_SHOWSELALWAYS");
            require(!has(LVS_SINGLESEL), L"has LVS_SINGLESEL: several rows can be chosen");
            require(!hasAny(LVS_SORTASCENDING | LVS_SORTDESCENDING),
                    L"is sorted: its rows stand in the order of the host's data");
        } else if (control.is(WC_LISTBOXW)) {
            require(has(LBS_NOTIFY), L"lacks LBS_NOTIFY");
            require(!has(LBS_SORT), L"is sorted: its rows stand in the order of the data");
        } else if (control.is(WC_COMBOBOXW)) {
            require((control.style & 3) == CBS_DROPDOWNLIST, L"is not a CBS_DROPDOWNLIST");
            require(!has(CBS_SORT), L"is sorted: the index of an item is data");
        } else if (control.is(WC_EDITW)) {
            require(has(ES_MULTILINE) || has(ES_AUTOHSCROLL),
                    L"lacks ES_AUTOHSCROLL: it takes no longer text than it shows");
        } else if (control.isCheck()) {
            require(control.isButton(BS_AUTOCHECKBOX), L"is not an AUTOCHECKBOX");
        }
        const bool stops = control.isInput() || control.isPush() || control.isCheck();
        require(!stops || has(WS_TABSTOP), L"lacks WS_TABSTOP");
    }
}
