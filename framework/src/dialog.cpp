#include "afxrt/dialog.h"

#include "afxres.h"
#include "afxrt/gdi.h"
#include "afxrt/handle_map.h"

#include "disabled_window.h"

#include <cwchar>

using afx_internal::HandleOf;

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::AnswerInitDialog)
    ON_MESSAGE(WM_SETFONT, &CDialog::AnswerSetFont)
    ON_MESSAGE(WM_COMMANDHELP, &CDialog::OnCommandHelp)
    ON_MESSAGE(WM_HELPHITTEST, &CDialog::OnHelpHitTest)
END_MESSAGE_MAP()

namespace {

// A template of the resource chain, and the module that has it.
struct Template {
    LPCDLGTEMPLATE data = nullptr;
    HINSTANCE module = nullptr;
};

Template FindTemplate(LPCTSTR name) {
    const HINSTANCE module = AfxFindResourceHandle(name, RT_DIALOG);
    const HRSRC found = module ? ::FindResource(module, name, RT_DIALOG) : nullptr;
    const HGLOBAL loaded = found ? ::LoadResource(module, found) : nullptr;
    return {static_cast<LPCDLGTEMPLATE>(loaded ? ::LockResource(loaded) : nullptr), module};
}

// The procedure below the object: it only says that the object has dealt with a message.
INT_PTR CALLBACK DialogProc(HWND, UINT message, WPARAM, LPARAM) {
    // Help that no handler gave ends here. It must not climb on to the owner, whose help would
    // be about something else.
    return message == WM_HELP;
}

} // namespace

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : m_nIDHelp(nIDTemplate), m_lpszTemplateName(MAKEINTRESOURCE(nIDTemplate)),
      m_pParentWnd(pParentWnd) {}

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd) : m_pParentWnd(pParentWnd) {
    TakeTemplateName(lpszTemplateName);
}

CDialog::~CDialog() {
    if (m_hWnd)
        CDialog::DestroyWindow();
    if (!IS_INTRESOURCE(m_lpszTemplateName))
        std::free(const_cast<LPTSTR>(m_lpszTemplateName));
}

void CDialog::TakeTemplateName(LPCTSTR name) {
    m_lpszTemplateName = IS_INTRESOURCE(name) ? name : ::_wcsdup(name);
    if (IS_INTRESOURCE(name))
        m_nIDHelp = LOWORD(reinterpret_cast<ULONG_PTR>(name));
}

HWND CDialog::CreateFrom(LPCDLGTEMPLATE dialogTemplate, HWND owner, HINSTANCE instance,
                         bool* initialised) {
    const afx_internal::WindowCreation creation(this);
    m_templateModule = instance;
    m_initialised = initialised;
    return ::CreateDialogIndirect(instance, dialogTemplate, owner, &DialogProc);
}

bool CDialog::CreateModeless(LPCDLGTEMPLATE dialogTemplate, HINSTANCE instance) {
    m_bModalEnded = false; // may be left from a modal run
    // Not a member: OnInitDialog may destroy the window, and the object goes with it.
    bool initialised = false;
    const HWND window = CreateFrom(dialogTemplate, HandleOf(m_pParentWnd), instance, &initialised);
    if (!::IsWindow(window))
        return false;
    if (!initialised) // an exception left OnInitDialog
        DestroyWindow();
    return initialised;
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd) {
    return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd) {
    if (!m_lpszTemplateName)
        TakeTemplateName(lpszTemplateName);
    const Template found = FindTemplate(lpszTemplateName);
    m_pParentWnd = pParentWnd ? pParentWnd : AfxGetMainWnd();
    return found.data && CreateModeless(found.data, found.module);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd) {
    m_pParentWnd = pParentWnd ? pParentWnd : AfxGetMainWnd();
    return CreateModeless(lpDialogTemplate, AfxGetResourceHandle());
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd) {
    m_lpDialogTemplate = lpDialogTemplate;
    if (!m_pParentWnd)
        m_pParentWnd = pParentWnd;
    return TRUE;
}

INT_PTR CDialog::DoModal() {
    const Template found = m_lpDialogTemplate ? Template{m_lpDialogTemplate, AfxGetResourceHandle()}
                                              : FindTemplate(m_lpszTemplateName);
    if (!found.data)
        return -1;
    const afx_internal::TemporaryScope temporaries;

    HWND top = nullptr;
    const HWND owner = HandleOf(CWnd::GetSafeOwner(m_pParentWnd, &top));
    afx_internal::DisabledWindow disabledOwner(owner);
    const afx_internal::DisabledWindow disabledTop(top);

    BeginModal(); // from here on EndDialog counts, in OnInitDialog too
    try {
        if (CreateFrom(found.data, owner, found.module, nullptr)) {
            RunModalLoop(GetStyle() & DS_NOIDLEMSG ? MLF_SHOWONIDLE | MLF_NOIDLEMSG
                                                   : MLF_SHOWONIDLE);
            if (m_hWnd)
                ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0,
                               SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE |
                                   SWP_NOZORDER);
        }
    } catch (CException* e) {
        e->Delete();
        EndModalLoop(-1);
    } catch (...) { // whatever it is, the host goes on
        EndModalLoop(-1);
    }
    m_bModal = false;

    // In this order: a window that goes while its owner is disabled would leave the activation
    // to some other application.
    disabledOwner.Enable();
    if (owner && m_hWnd && ::GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(owner);
    DestroyWindow(); // virtual: derived classes let go of what belongs to the window there
    return m_nModalResult;
}

void CDialog::EndDialog(int nResult) {
    EndModalLoop(nResult);
}

LRESULT CDialog::AnswerInitDialog(WPARAM, LPARAM) {
    bool* const initialised = m_initialised;
    const BOOL setFocus = OnInitDialog();
    if (initialised)
        *initialised = true;
    return setFocus;
}

BOOL CDialog::OnInitDialog() {
    if (m_lpszTemplateName && !ExecuteDlgInit(m_lpszTemplateName)) {
        EndDialog(-1);
        return FALSE;
    }
    if (!UpdateData(FALSE)) { // the template lacks a control, say
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

LRESULT CDialog::AnswerSetFont(WPARAM wParam, LPARAM) {
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return Default();
}

void CDialog::OnSetFont(CFont*) {}

void CDialog::OnOK() {
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl) {
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->m_hWnd), TRUE);
}

DWORD CDialog::GetDefID() const {
    return static_cast<DWORD>(::SendMessage(m_hWnd, DM_GETDEFID, 0, 0));
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg) || TranslateDialogKeys(pMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    // Commands from this number on are the application's, and go on to the owner; those below are
    // the dialog's own.
    constexpr UINT firstCommand = 0x8000;
    constexpr UINT firstSystemCommand = 0xF000;
    if (nCode != CN_COMMAND || nID < firstCommand || nID >= firstSystemCommand)
        return FALSE;
    CWnd* owner = GetOwner();
    if (owner && FromHandlePermanent(owner->m_hWnd) &&
        owner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinThread* thread = AfxGetThread();
    return thread && thread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

LRESULT CDialog::OnCommandHelp(WPARAM, LPARAM lParam) {
    const DWORD_PTR context = lParam != 0      ? static_cast<DWORD_PTR>(lParam)
                              : m_nIDHelp != 0 ? HID_BASE_RESOURCE + m_nIDHelp
                                               : 0;
    CWinApp* app = AfxGetApp();
    if (context == 0 || !app)
        return FALSE;
    app->ShowHelp(context);
    return TRUE;
}

LRESULT CDialog::OnHelpHitTest(WPARAM, LPARAM) {
    return m_nIDHelp != 0 ? static_cast<LRESULT>(HID_BASE_RESOURCE + m_nIDHelp) : 0;
}
