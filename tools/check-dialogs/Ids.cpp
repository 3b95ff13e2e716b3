#include "Ids.h"

#include "Text.h"

#include <filesystem>
#include <sstream>

namespace {

bool beginsWith(const std::wstring& text, const std::wstring& beginning) {
    return text.compare(0, beginning.size(), beginning) == 0;
}

/// Adds a number to a table in which every number stands once.
void addOnce(std::map<int, std::wstring>& table, int number, const std::wstring& symbol,
             const std::wstring& place, Report& report) {
    const auto [entry, added] = table.emplace(number, symbol);
    if (!added)
        report.add(place, L"ids", symbol + L" has the number of " + entry->second);
}

} // namespace

void Ids::read(const std::wstring& file, Report& report) {
    const std::wstring place = std::filesystem::path(file).filename().wstring();
    std::wstring className;
    std::shared_ptr<DialogIds> dialog;
    for (const std::string& line : linesOf(file)) {
        std::wistringstream words(widened(line));
        std::wstring first;
        std::wstring symbol;
        int number = 0;
        words >> first >> symbol;
        if (first == L"//" && beginsWith(symbol, L"C") && words.eof())
            className = symbol.substr(1);
        if (first != L"#define" || !(words >> number))
            continue;

        if (beginsWith(symbol, L"IDD_")) {
            const bool further =
                className.empty() && dialog != nullptr && beginsWith(symbol, dialog->symbol + L"_");
            if (!further)
                dialog = std::make_shared<DialogIds>(
                    DialogIds{className.empty() ? symbol : className, symbol, {}});
            className.clear();
            const auto [entry, added] = m_dialogs.emplace(number, dialog);
            if (!added)
                report.add(place, L"ids", symbol + L" has the number of " + entry->second->symbol);
        } else if (beginsWith(symbol, L"IDC_")) {
            if (dialog == nullptr || !beginsWith(symbol, L"IDC_" + dialog->symbol.substr(4) + L"_"))
                report.add(place, L"ids", symbol + L" does not name the dialog it stands under");
            else
                addOnce(dialog->controls, number, symbol, place, report);
        } else if (beginsWith(symbol, L"IDS_")) {
            addOnce(m_strings, number, symbol, place, report);
        } else if (beginsWith(symbol, L"IDI_")) {
            addOnce(m_icons, number, symbol, place, report);
        }
    }
}
