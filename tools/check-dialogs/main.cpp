// Checks the built dialogs, texts and icons: every template of the language file is created as
// a real window with real controls, and held against the rules. Fails with a list of findings.

#include "Ids.h"
#include "Report.h"
#include "Rules.h"
#include "Text.h"

#include <commctrl.h>

#include <cstdio>
#include <filesystem>

namespace {

constexpr const char* usage =
    "check-dialogs --language <dll> --library <dll> --fragments <folder> [--allowed <file>]\n"
    "              --ids <header>...\n";

struct Arguments {
    std::wstring language;
    std::wstring library;
    std::wstring fragments;
    std::wstring allowed;
    std::vector<std::wstring> ids;

    bool complete() const {
        return !language.empty() && !library.empty() && !fragments.empty() && !ids.empty();
    }
};

Arguments parse(int count, wchar_t** values) {
    Arguments arguments;
    std::wstring option;
    for (int i = 1; i < count; ++i) {
        const std::wstring value = values[i];
        if (value.compare(0, 2, L"--") == 0)
            option = value;
        else if (option == L"--language")
            arguments.language = value;
        else if (option == L"--library")
            arguments.library = value;
        else if (option == L"--fragments")
            arguments.fragments = value;
        else if (option == L"--allowed")
            arguments.allowed = value;
        else if (option == L"--ids")
            arguments.ids.push_back(value);
    }
    return arguments;
}

/// The module's resources alone; none of its code runs.
HMODULE load(const std::wstring& file) {
    const HMODULE module =
        LoadLibraryExW(std::filesystem::absolute(file).c_str(), nullptr,
                       LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
    if (module == nullptr)
        std::fprintf(stderr, "check-dialogs: cannot load %s (error %lu)\n", narrowed(file).c_str(),
                     GetLastError());
    return module;
}

} // namespace

int wmain(int count, wchar_t** values) {
    const Arguments arguments = parse(count, values);
    if (!arguments.complete()) {
        std::fputs(usage, stderr);
        return 2;
    }
    const INITCOMMONCONTROLSEX classes{sizeof classes,
                                       ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_USEREX_CLASSES |
                                           ICC_INTERNET_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&classes);
    const HMODULE language = load(arguments.language);
    const HMODULE library = load(arguments.library);
    if (language == nullptr || library == nullptr)
        return 2;

    Report report;
    if (!arguments.allowed.empty())
        report.readAllowed(arguments.allowed);
    Ids ids;
    for (const std::wstring& header : arguments.ids)
        ids.read(header, report);
    checkFragments(arguments.fragments, report);
    checkTemplates(language, ids, report);
    checkStrings(language, ids, report);
    checkIcons(language, library, ids, report);
    checkVersions(language, library, report);
    checkLanguage(language, report);

    const int findings = report.print();
    std::printf("check-dialogs: %zu templates, %zu texts, %zu icons, %d findings\n",
                ids.dialogs().size(), ids.strings().size(), ids.icons().size(), findings);
    return findings == 0 ? 0 : 1;
}
