#include "afxrt/app.h"

#include "afxres.h"
#include "afxrt/wnd.h"
#include "disabled_window.h"
#include "module_file.h"
#include "owned_text.h"
#include "thread_state.h"

#include <cwchar>
#include <string>

using afx_internal::HandleOf;
using afx_internal::ReplaceText;
using afx_internal::WithoutExtension;

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

namespace {

std::wstring FileTitle(const std::wstring& path) {
    const std::size_t slash = path.find_last_of(L"\\/");
    return WithoutExtension(slash == std::wstring::npos ? path : path.substr(slash + 1));
}

// The help file that goes with a path.
std::wstring HelpFile(const std::wstring& path, AFX_HELP_TYPE type) {
    return WithoutExtension(path) + (type == afxHTMLHelp ? L".CHM" : L".HLP");
}

} // namespace

CWinApp::CWinApp(LPCTSTR lpszAppName) : m_pState(AfxGetModuleState()) {
    ReplaceText(m_pszAppName, lpszAppName);
    if (!m_pState->m_pCurrentWinApp)
        m_pState->m_pCurrentWinApp = this;
}

CWinApp::~CWinApp() {
    if (m_pState->m_pCurrentWinApp == this)
        m_pState->m_pCurrentWinApp = nullptr;
    for (LPCTSTR* name :
         {&m_pszAppName, &m_pszExeName, &m_pszHelpFilePath, &m_pszProfileName, &m_pszRegistryKey})
        ReplaceText(*name, nullptr);
}

BOOL CWinApp::InitApplication() {
    return TRUE;
}

BOOL CWinApp::InitInstance() {
    return TRUE;
}

int CWinApp::ExitInstance() {
    return afx_internal::ExitCodeOfLoop();
}

int CWinApp::Run() {
    // The loop ends with the main window: without one it would never end.
    if (!m_pMainWnd && !AfxGetMainWnd())
        ::PostQuitMessage(0);
    return CWinThread::Run();
}

void CWinApp::TakeModuleNames() {
    const std::wstring path = afx_internal::ModulePath(m_hInstance);
    const std::wstring title = FileTitle(path);
    if (!m_pszExeName)
        ReplaceText(m_pszExeName, title.c_str());
    if (!m_pszAppName) {
        CString name;
        // The module's own title only: one found in the chain would be another module's name.
        if (!name.LoadString(m_hInstance, AFX_IDS_APP_TITLE))
            name = m_pszExeName;
        ReplaceText(m_pszAppName, name);
    }
    if (!m_pszHelpFilePath)
        ReplaceText(m_pszHelpFilePath, HelpFile(path, m_eHelpType).c_str());
    if (!m_pszProfileName)
        ReplaceText(m_pszProfileName, (title + L".INI").c_str());
}

void CWinApp::EnableHtmlHelp() {
    SetHelpMode(afxHTMLHelp);
}

void CWinApp::SetHelpMode(AFX_HELP_TYPE eHelpType) {
    m_eHelpType = eHelpType;
    if (m_pszHelpFilePath)
        ReplaceText(m_pszHelpFilePath, HelpFile(m_pszHelpFilePath, eHelpType).c_str());
}

AFX_HELP_TYPE CWinApp::GetHelpMode() {
    return m_eHelpType;
}

namespace {

// The window that the help viewer belongs to.
HWND HelpOwner() {
    const CWnd* main = AfxGetMainWnd();
    return main ? main->m_hWnd : ::GetActiveWindow();
}

HWND WINAPI CallHelpViewer(HWND caller, LPCTSTR file, UINT command, DWORD_PTR data) {
    using Function = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);
    static const HMODULE viewer =
        ::LoadLibraryEx(L"hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    static const auto function = viewer ? reinterpret_cast<Function>(reinterpret_cast<void*>(
                                              ::GetProcAddress(viewer, "HtmlHelpW")))
                                        : nullptr;
    return function ? function(caller, file, command, data) : nullptr;
}

afx_internal::HtmlHelpFunction htmlHelp = &CallHelpViewer;

} // namespace

namespace afx_internal {
HtmlHelpFunction SetHtmlHelpFunction(HtmlHelpFunction function) {
    return std::exchange(htmlHelp, function ? function : &CallHelpViewer);
}
} // namespace afx_internal

void CWinApp::WinHelp(DWORD_PTR dwData, UINT nCmd) {
    CWaitCursor wait;
    if (!::WinHelp(HelpOwner(), m_pszHelpFilePath, nCmd, dwData))
        AfxMessageBox(AFX_IDP_FAILED_TO_LAUNCH_HELP);
}

void CWinApp::HtmlHelp(DWORD_PTR dwData, UINT nCmd) {
    CWaitCursor wait;
    if (!htmlHelp(HelpOwner(), m_pszHelpFilePath, nCmd, dwData))
        AfxMessageBox(AFX_IDP_FAILED_TO_LAUNCH_HELP);
}

void CWinApp::ShowHelp(DWORD_PTR dwData, UINT nCmd) {
    if (m_eHelpType == afxHTMLHelp) {
        constexpr UINT helpContext = 0x000F; // HH_HELP_CONTEXT
        HtmlHelp(dwData, nCmd == HELP_CONTEXT ? helpContext : nCmd);
    } else {
        WinHelp(dwData, nCmd);
    }
}

void CWinApp::OnHelp() {
    if (CWnd* window = m_pMainWnd)
        window->OnHelp();
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const {
    return ::LoadCursor(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

HCURSOR CWinApp::LoadCursor(UINT nIDResource) const {
    return LoadCursor(MAKEINTRESOURCE(nIDResource));
}

HCURSOR CWinApp::LoadStandardCursor(LPCTSTR lpszCursorName) const {
    return ::LoadCursor(nullptr, lpszCursorName);
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const {
    return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

HICON CWinApp::LoadIcon(UINT nIDResource) const {
    return LoadIcon(MAKEINTRESOURCE(nIDResource));
}

HICON CWinApp::LoadStandardIcon(LPCTSTR lpszIconName) const {
    return ::LoadIcon(nullptr, lpszIconName);
}

void CWinApp::DoWaitCursor(int nCode) {
    const int before = m_waits;
    m_waits = std::max(0, before + nCode);
    if (m_waits > 0) {
        const HCURSOR previous = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
        if (before == 0)
            m_cursorBeforeWait = previous;
    } else if (before > 0) {
        ::SetCursor(m_cursorBeforeWait);
    }
}

CWaitCursor::CWaitCursor() {
    if (CWinApp* app = AfxGetApp())
        app->BeginWaitCursor();
}

CWaitCursor::~CWaitCursor() {
    if (CWinApp* app = AfxGetApp())
        app->EndWaitCursor();
}

void CWaitCursor::Restore() {
    if (CWinApp* app = AfxGetApp())
        app->RestoreWaitCursor();
}

namespace {

// F1 in a message box gives the help of the message, or none: the key shall not climb on to the
// owner, whose help is about something else.
void CALLBACK OnMessageHelp(HELPINFO* info) {
    CWinApp* app = AfxGetApp();
    if (app && info->dwContextId != 0)
        app->ShowHelp(info->dwContextId);
}

int ShowMessage(LPCTSTR text, LPCTSTR caption, UINT type, UINT helpId) {
    if ((type & MB_ICONMASK) == 0)
        type |= MB_ICONEXCLAMATION;
    HWND top = nullptr;
    const CWnd* owner = CWnd::GetSafeOwner(nullptr, &top);
    const afx_internal::DisabledWindow disabled(top);
    MSGBOXPARAMS box = {};
    box.cbSize = sizeof box;
    box.hwndOwner = HandleOf(owner);
    box.lpszText = text;
    box.lpszCaption = caption;
    box.dwStyle = type;
    box.dwContextHelpId = helpId != 0 ? HID_BASE_PROMPT + helpId : 0;
    box.lpfnMsgBoxCallback = &OnMessageHelp;
    return ::MessageBoxIndirect(&box);
}

} // namespace

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt) {
    return ShowMessage(lpszPrompt, m_pszAppName, nType, nIDPrompt);
}

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
    if (CWinApp* app = AfxGetApp())
        return app->DoMessageBox(lpszText, nType, nIDHelp);
    return ShowMessage(lpszText, nullptr, nType, nIDHelp);
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp) {
    CString text;
    text.LoadString(nIDPrompt);
    return AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}
