#include "Resources.h"
#include "Rules.h"

#include <commctrl.h>

#include <cstring>
#include <iterator>
#include <set>

namespace {

constexpr int helpButton = 57670;

/// The texts of a module that are not empty, by number.
std::map<int, std::wstring> stringsOf(HMODULE module) {
    std::map<int, std::wstring> strings;
    for (const int block : resourcesOf(module, RT_STRING)) {
        // Sixteen texts, each with its length before it; block 1 begins with number 0.
        const Bytes bytes = bytesOf(module, block, RT_STRING);
        const auto* text = reinterpret_cast<const WCHAR*>(bytes.first);
        for (int i = 0; i < 16; ++i) {
            if (*text != 0)
                strings[(block - 1) * 16 + i].assign(text + 1, *text);
            text += 1 + *text;
        }
    }
    return strings;
}

/// Sizes of a group icon's pictures that have 32 bits a pixel.
std::set<int> sizesOf(HMODULE module, int number) {
    std::set<int> sizes;
    const Bytes bytes = bytesOf(module, number, RT_GROUP_ICON);
    const int count = bytes.first[4];
    for (int i = 0; i < count; ++i) {
        const BYTE* entry = bytes.first + 6 + 14 * i;
        if (entry[0] == entry[1] && entry[6] == 32)
            sizes.insert(entry[0]);
    }
    return sizes;
}

} // namespace

void checkControlIds(const Dialog& dialog, const DialogIds& ids, Report& report) {
    std::set<int> seen;
    for (const Control& control : dialog.controls()) {
        const bool standard = control.id == -1 || control.id == IDOK || control.id == IDCANCEL ||
                              control.id == helpButton;
        if (control.id != -1 && !seen.insert(control.id).second)
            report.add(dialog.place(control), L"ids", L"is in the template twice");
        else if (!standard && ids.controls.count(control.id) == 0)
            report.add(dialog.place(control), L"ids", L"has no symbol in the dialog's block");
    }
    for (const auto& [number, symbol] : ids.controls) {
        if (seen.count(number) == 0)
            report.add(dialog.place() + L": control " + std::to_wstring(number), L"absent",
                       L"is not in the template: " + symbol);
    }
}

void checkInitialItems(const Dialog& dialog, HMODULE language, Report& report) {
    const Bytes bytes = bytesOf(language, dialog.number(), initialItemsType);
    const auto wrong = [&](const std::wstring& text) {
        report.add(dialog.place(), L"items", L"its initial items: " + text);
    };
    // Records of control, message, length and text, up to a control of 0.
    DWORD at = 0;
    while (at + 2 <= bytes.count) {
        WORD id;
        std::memcpy(&id, bytes.first + at, sizeof id);
        if (id == 0)
            return;
        if (at + 8 > bytes.count)
            break;
        WORD message;
        DWORD length;
        std::memcpy(&message, bytes.first + at + 2, sizeof message);
        std::memcpy(&length, bytes.first + at + 4, sizeof length);
        at += 8;
        if (length > bytes.count - at)
            break;
        const Control* control = dialog.find(id);
        const bool combo = message == 0x403;
        if (!combo && message != 0x401)
            wrong(L"message " + std::to_wstring(message) + L" adds no item");
        else if (control == nullptr || !control->is(combo ? WC_COMBOBOXW : WC_LISTBOXW))
            wrong(L"there is no " + std::wstring(combo ? L"combo " : L"list box ") +
                  std::to_wstring(id));
        const auto* text = reinterpret_cast<const char*>(bytes.first + at);
        if (length < 2 || std::memchr(text, 0, length) != text + length - 1)
            wrong(L"an item of " + std::to_wstring(id) + L" does not end where its length says");
        at += length;
    }
    if (bytes.first != nullptr)
        wrong(L"they have no end");
}

void checkTemplates(HMODULE language, const Ids& ids, Report& report) {
    const std::set<int> templates = resourcesOf(language, RT_DIALOG);
    for (const auto& [number, dialog] : ids.dialogs()) {
        if (templates.count(number) == 0)
            report.add(dialog->name + L" (" + std::to_wstring(number) + L")", L"template",
                       L"has no template");
    }
    for (const int number : resourcesOf(language, initialItemsType)) {
        if (templates.count(number) == 0)
            report.add(languagePlace, L"items",
                       L"initial items for dialog " + std::to_wstring(number) +
                           L", which is not there");
    }
    for (const int number : templates) {
        const auto known = ids.dialogs().find(number);
        const std::wstring name = known == ids.dialogs().end() ? L"template" : known->second->name;
        const auto dialog = Dialog::create(language, number, name, report);
        if (!dialog)
            continue;
        checkMnemonics(*dialog, report);
        checkNames(*dialog, report);
        checkRoom(*dialog, report);
        checkPlaces(*dialog, report);
        checkMargins(*dialog, report);
        checkOverlaps(*dialog, report);
        checkPushButtons(*dialog, report);
        checkReadingOrder(*dialog, report);
        checkClosingButtons(*dialog, report);
        checkRadioGroups(*dialog, report);
        checkStyles(*dialog, report);
        checkInitialItems(*dialog, language, report);
        if (known == ids.dialogs().end())
            report.add(dialog->place(), L"ids", L"no header has a symbol for it");
        else
            checkControlIds(*dialog, *known->second, report);
    }
}

void checkStrings(HMODULE language, const Ids& ids, Report& report) {
    const std::map<int, std::wstring> strings = stringsOf(language);
    for (const auto& [number, symbol] : ids.strings()) {
        if (strings.count(number) == 0)
            report.add(languagePlace, L"strings",
                       symbol + L" (" + std::to_wstring(number) + L") has no text");
    }
    for (const auto& [number, text] : strings) {
        if (ids.strings().count(number) == 0)
            report.add(languagePlace, L"strings",
                       L"text " + std::to_wstring(number) + L" has no symbol: \"" + text + L"\"");
        if (text.front() == L' ' || text.back() == L' ')
            report.add(languagePlace, L"strings",
                       L"text " + std::to_wstring(number) + L" begins or ends with a blank");
    }
}

void checkIcons(HMODULE language, HMODULE library, const Ids& ids, Report& report) {
    const std::set<int> own = resourcesOf(library, RT_GROUP_ICON);
    const std::set<int> beside = resourcesOf(language, RT_GROUP_ICON);
    for (const auto& [number, symbol] : ids.icons()) {
        if (own.count(number) + beside.count(number) != 1)
            report.add(
                own.count(number) == 0 ? languagePlace : libraryPlace, L"icons",
                symbol + L" (" + std::to_wstring(number) +
                    (own.count(number) == 0 ? L") is nowhere" : L") is in the language file too"));
    }
    const auto check = [&](HMODULE module, const std::set<int>& numbers,
                           const std::wstring& place) {
        for (const int number : numbers) {
            const std::wstring icon = L"icon " + std::to_wstring(number);
            if (ids.icons().count(number) == 0)
                report.add(place, L"icons", icon + L" has no symbol");
            const std::set<int> sizes = sizesOf(module, number);
            for (const int size : {16, 32, 48}) {
                if (sizes.count(size) == 0)
                    report.add(place, L"icons",
                               icon + L" has no picture of " + std::to_wstring(size) +
                                   L" pixels with 32 bits each");
            }
        }
    };
    check(library, own, libraryPlace);
    check(language, beside, languagePlace);
}
