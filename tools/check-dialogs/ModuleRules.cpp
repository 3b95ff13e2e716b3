#include "Resources.h"
#include "Rules.h"

namespace {

/// How many languages a resource has.
int languagesOf(HMODULE module, LPCWSTR type, int number) {
    int count = 0;
    EnumResourceLanguagesW(
        module, type, MAKEINTRESOURCEW(number),
        [](HMODULE, LPCWSTR, LPCWSTR, WORD, LONG_PTR counter) -> BOOL {
            ++*reinterpret_cast<int*>(counter);
            return TRUE;
        },
        reinterpret_cast<LONG_PTR>(&count));
    return count;
}

} // namespace

void checkVersions(HMODULE language, HMODULE library, Report& report) {
    if (bytesOf(language, VS_VERSION_INFO, RT_VERSION).count == 0)
        report.add(languagePlace, L"version", L"has no version information");
    if (bytesOf(library, VS_VERSION_INFO, RT_VERSION).count == 0)
        report.add(libraryPlace, L"version", L"has no version information");
}

void checkLanguage(HMODULE language, Report& report) {
    const auto check = [&](LPCWSTR type, const wchar_t* name) {
        for (const int number : resourcesOf(language, type)) {
            if (languagesOf(language, type, number) > 1)
                report.add(languagePlace, L"language",
                           std::wstring(name) + std::to_wstring(number) +
                               L" is there in several languages: one hides the other");
        }
    };
    check(RT_DIALOG, L"dialog ");
    check(RT_STRING, L"block of texts ");
    check(initialItemsType, L"initial items of dialog ");
}
