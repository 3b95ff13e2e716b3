#include "module_file.h"

#include <algorithm>
#include <iterator>
#include <psapi.h>
#include <vector>

namespace afx_internal {
namespace {

// The three-letter name of a language, such as ENU.
std::wstring LanguageCode(LANGID language) {
    wchar_t code[9] = L"";
    ::GetLocaleInfo(MAKELCID(language, SORT_DEFAULT), LOCALE_SABBREVLANGNAME, code,
                    static_cast<int>(std::size(code)));
    return code;
}

constexpr std::size_t longestPath = 32767; // of any file

LANGID MainLanguage(LANGID language) {
    return MAKELANGID(PRIMARYLANGID(language), SUBLANG_DEFAULT);
}

} // namespace

std::wstring ModulePath(HMODULE module) {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            ::GetModuleFileName(module, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

std::wstring MappedFile(HMODULE module) {
    std::wstring path(longestPath, L'\0');
    path.resize(::GetMappedFileName(::GetCurrentProcess(), module, path.data(),
                                    static_cast<DWORD>(path.size())));
    return path;
}

std::wstring WithoutExtension(const std::wstring& path) {
    const std::size_t dot = path.find_last_of(L".\\/");
    return dot != std::wstring::npos && path[dot] == L'.' ? path.substr(0, dot) : path;
}

HINSTANCE LoadLanguageModule(HMODULE module) {
    const std::wstring stem = WithoutExtension(ModulePath(module));
    if (stem.empty()) // a bare name would be looked for in other folders
        return nullptr;
    const LANGID user = ::GetUserDefaultUILanguage();
    const LANGID system = ::GetSystemDefaultUILanguage();
    std::vector<std::wstring> codes;
    for (const std::wstring& code :
         {LanguageCode(user), LanguageCode(MainLanguage(user)), LanguageCode(system),
          LanguageCode(MainLanguage(system)), std::wstring(L"LOC")})
        // Mostly all languages are one, and to look for a file that is not there takes long.
        if (!code.empty() && std::ranges::find(codes, code) == codes.end())
            codes.push_back(code);
    for (const std::wstring& code : codes) {
        // Resources only: a file of that name gets no chance to run code.
        const std::wstring file = stem + code + L".dll";
        if (HINSTANCE found = ::LoadLibraryEx(
                file.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE))
            return found;
    }
    return nullptr;
}

} // namespace afx_internal
