// The chain of modules in which resources are looked for, and their language modules.
#include "afxrt/app.h"
#include "afxrt/module.h"

#include <algorithm>
#include <string>
#include <vector>

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

namespace afx_internal {

bool FailsAtChainEntry();

namespace {

// Newest first.
std::vector<CDynLinkLibrary*>& Chain() {
    static std::vector<CDynLinkLibrary*> chain;
    return chain;
}

HMODULE FrameworkModule() {
    HMODULE module = nullptr;
    ::GetModuleHandleEx(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                            GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                        reinterpret_cast<LPCTSTR>(&FrameworkModule), &module);
    return module;
}

// The modules in the order of the search; visit returns true where the search ends.
template <class Visit>
bool WalkChain(Visit visit) {
    const AFX_MODULE_STATE* state = AfxGetModuleState();
    if (state->m_hCurrentResourceHandle && visit(state->m_hCurrentResourceHandle))
        return true;
    for (const bool system : {false, true}) {
        for (const CDynLinkLibrary* library : Chain())
            if ((library->m_bSystem != FALSE) == system && visit(library->m_hModule))
                return true;
        if (system)
            break;
        if (state->m_hLanguageModule && visit(state->m_hLanguageModule))
            return true;
        for (const CDynLinkLibrary* library : Chain())
            if (library->m_hResource != library->m_hModule && visit(library->m_hResource))
                return true;
    }
    return visit(FrameworkModule());
}

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

// The three-letter name of a language, such as ENU.
std::wstring LanguageCode(LANGID language) {
    wchar_t code[9] = L"";
    ::GetLocaleInfo(MAKELCID(language, SORT_DEFAULT), LOCALE_SABBREVLANGNAME, code,
                    static_cast<int>(std::size(code)));
    return code;
}

} // namespace

HINSTANCE LoadLanguageModule(HMODULE module) {
    std::wstring stem = ModulePath(module);
    const std::size_t dot = stem.find_last_of(L".\\/");
    if (dot != std::wstring::npos && stem[dot] == L'.')
        stem.resize(dot);
    const LANGID user = ::GetUserDefaultUILanguage();
    const LANGID system = ::GetSystemDefaultUILanguage();
    const auto mainLanguage = [](LANGID language) -> LANGID {
        return MAKELANGID(PRIMARYLANGID(language), SUBLANG_DEFAULT);
    };
    for (const std::wstring& code :
         {LanguageCode(user), LanguageCode(mainLanguage(user)), LanguageCode(system),
          LanguageCode(mainLanguage(system)), std::wstring(L"LOC")}) {
        if (code.empty())
            continue;
        // Resources only: a file of that name gets no chance to run code.
        const std::wstring file = stem + code + L".dll";
        if (HINSTANCE found = ::LoadLibraryEx(
                file.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE))
            return found;
    }
    return nullptr;
}

BOOL LoadStringFromChain(UINT id, CString& text) {
    const LPCTSTR block = MAKEINTRESOURCE((id >> 4) + 1);
    text.Empty();
    return WalkChain([&](HINSTANCE module) {
        return ::FindResource(module, block, RT_STRING) && LoadStringFrom(module, id, text);
    });
}

} // namespace afx_internal

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType) {
    HINSTANCE found = nullptr;
    afx_internal::WalkChain([&](HINSTANCE module) {
        if (!::FindResource(module, lpszName, lpszType))
            return false;
        found = module;
        return true;
    });
    return found;
}

int AFXAPI AfxLoadString(UINT nID, LPTSTR lpszBuf, UINT nMaxBuf) {
    if (nMaxBuf == 0)
        return 0;
    CString text;
    afx_internal::LoadStringFromChain(nID, text);
    const int length = std::min(text.GetLength(), static_cast<int>(nMaxBuf) - 1);
    std::copy_n(text.GetString(), length, lpszBuf);
    lpszBuf[length] = L'\0';
    return length;
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : m_hModule(state.hModule), m_hResource(state.hResource), m_bSystem(bSystem) {
    if (afx_internal::FailsAtChainEntry())
        AfxThrowMemoryException();
    std::vector<CDynLinkLibrary*>& chain = afx_internal::Chain();
    chain.insert(chain.begin(), this);
}

CDynLinkLibrary::~CDynLinkLibrary() {
    std::erase(afx_internal::Chain(), this);
}

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule) {
    if (state.bInitialized)
        return TRUE;
    state.hModule = hModule;
    const HINSTANCE language = afx_internal::LoadLanguageModule(hModule);
    state.hResource = language ? language : hModule;
    state.pFirstSharedClass = nullptr;
    state.bInitialized = TRUE;
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL) {
    if (!state.bInitialized)
        return;
    const std::vector<CDynLinkLibrary*> chain = afx_internal::Chain();
    for (CDynLinkLibrary* library : chain)
        if (library->m_hModule == state.hModule)
            delete library;
    if (state.hResource != state.hModule)
        ::FreeLibrary(state.hResource);
    state = {};
}
