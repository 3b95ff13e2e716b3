#include "afxrt/module.h"

#include "afxrt/app.h"
#include "afxrt/handle_map.h"
#include "afxrt/wnd.h"
#include "module_file.h"
#include "thread_slot.h"
#include "thread_state.h"

#include <utility>

using afx_internal::CurrentThread;

namespace afx_internal {

ThreadState& CurrentThread() {
    static const ThreadSlot<ThreadState> slot;
    return slot.Get();
}

namespace {
// Windows made under the application's state.
LRESULT CALLBACK ApplicationWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    AFX_MANAGE_STATE(AfxGetAppModuleState());
    return AfxWndProc(window, message, wParam, lParam);
}
} // namespace

} // namespace afx_internal

AFX_MODULE_STATE::AFX_MODULE_STATE(BOOL bDLL, WNDPROC pfnAfxWndProc)
    : m_bDLL(bDLL), m_pfnAfxWndProc(pfnAfxWndProc) {}

AFX_MODULE_STATE::~AFX_MODULE_STATE() {
    // The module is being unloaded: the thread falls back on the application's state.
    if (CurrentThread().moduleState == this)
        CurrentThread().moduleState = nullptr;
}

AFX_MODULE_STATE* AFXAPI AfxGetAppModuleState() {
    // Never destroyed: other modules, unloaded after this one's static objects, still ask for it.
    static AFX_MODULE_STATE* const state = [] {
        auto* made = new AFX_MODULE_STATE(FALSE, &afx_internal::ApplicationWndProc);
        made->m_hCurrentInstanceHandle = ::GetModuleHandle(nullptr);
        made->m_hCurrentResourceHandle = made->m_hCurrentInstanceHandle;
        return made;
    }();
    return state;
}

AFX_MODULE_STATE* AFXAPI AfxGetModuleState() {
    AFX_MODULE_STATE* state = CurrentThread().moduleState;
    return state ? state : AfxGetAppModuleState();
}

AFX_MODULE_STATE* AFXAPI AfxSetModuleState(AFX_MODULE_STATE* pNewState) {
    AFX_MODULE_STATE* previous = std::exchange(CurrentThread().moduleState, pNewState);
    return previous ? previous : AfxGetAppModuleState();
}

AFX_MAINTAIN_STATE::AFX_MAINTAIN_STATE(AFX_MODULE_STATE* pModuleState)
    : m_pPrevModuleState(AfxSetModuleState(pModuleState)) {}

AFX_MAINTAIN_STATE::~AFX_MAINTAIN_STATE() {
    AfxSetModuleState(m_pPrevModuleState);
}

CWinApp* AFXAPI AfxGetApp() {
    return AfxGetModuleState()->m_pCurrentWinApp;
}

CWinThread* AFXAPI AfxGetThread() {
    CWinApp* app = AfxGetApp();
    return app && app->m_nThreadID == ::GetCurrentThreadId() ? app : nullptr;
}

CWnd* AFXAPI AfxGetMainWnd() {
    CWinThread* thread = AfxGetThread();
    return thread ? thread->GetMainWnd() : nullptr;
}

HINSTANCE AFXAPI AfxGetInstanceHandle() {
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}

HINSTANCE AFXAPI AfxGetResourceHandle() {
    return AfxGetModuleState()->m_hCurrentResourceHandle;
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource) {
    AfxGetModuleState()->m_hCurrentResourceHandle = hInstResource;
}

LPCTSTR AFXAPI AfxGetAppName() {
    const CWinApp* app = AfxGetApp();
    return app ? app->m_pszAppName : nullptr;
}

BOOL AFXAPI AfxCoreInitModule() {
    AFX_MODULE_STATE* state = AfxGetModuleState();
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    return state && ::InitCommonControlsEx(&classes);
}

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine,
                       int nCmdShow) {
    if (hPrevInstance)
        return FALSE;
    AFX_MODULE_STATE* state = AfxGetModuleState();
    state->m_hCurrentInstanceHandle = hInstance;
    state->m_hCurrentResourceHandle = hInstance;
    if (!state->m_bDLL && !state->m_hLanguageModule)
        state->m_hLanguageModule = afx_internal::LoadLanguageModule(hInstance);
    if (CWinApp* app = state->m_pCurrentWinApp) {
        app->m_hInstance = hInstance;
        app->m_lpCmdLine = lpCmdLine;
        app->m_nCmdShow = nCmdShow;
        app->TakeModuleNames();
    }
    return TRUE;
}

void AFXAPI AfxWinTerm() {
    AFX_MODULE_STATE* state = AfxGetModuleState();
    if (state->m_hLanguageModule) {
        ::FreeLibrary(state->m_hLanguageModule);
        state->m_hLanguageModule = nullptr;
    }
    state->m_hCurrentInstanceHandle = nullptr;
    state->m_hCurrentResourceHandle = nullptr;
    if (!state->m_bDLL)
        AfxTermThread();
}

void AFXAPI AfxTermThread(HINSTANCE) {
    afx_internal::DeleteTemporaryObjects();
}
