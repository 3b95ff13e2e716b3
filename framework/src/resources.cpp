// The chain of modules in which resources are looked for.
#include "afxrt/app.h"
#include "afxrt/module.h"
#include "module_file.h"

#include <algorithm>
#include <vector>

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

namespace afx_internal {

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
    const auto visitOne = [&](HINSTANCE module) { return module && visit(module); };
    const auto visitLibraries = [&](bool system) {
        return std::ranges::any_of(Chain(), [&](const CDynLinkLibrary* library) {
            return (library->m_bSystem != FALSE) == system && visitOne(library->m_hModule);
        });
    };
    const auto visitLanguageModules = [&] {
        return visitOne(state->m_hLanguageModule) ||
               std::ranges::any_of(Chain(), [&](const CDynLinkLibrary* library) {
                   return library->m_hResource != library->m_hModule &&
                          visitOne(library->m_hResource);
               });
    };
    return visitOne(state->m_hCurrentResourceHandle) || visitLibraries(false) ||
           visitLanguageModules() || visitLibraries(true) || visitOne(FrameworkModule());
}

} // namespace

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
    const UINT length = std::min(static_cast<UINT>(text.GetLength()), nMaxBuf - 1);
    std::copy_n(text.GetString(), length, lpszBuf);
    lpszBuf[length] = L'\0';
    return static_cast<int>(length);
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : m_hModule(state.hModule), m_hResource(state.hResource), m_bSystem(bSystem) {
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
