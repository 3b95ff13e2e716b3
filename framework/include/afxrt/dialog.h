// Dialog boxes.
#pragma once

#include "wnd.h"

/// A dialog box made from a template of the resource chain.
class AFXRT_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)

public:
    /// pParentWnd: NULL lets the framework find the owner (CWnd::GetSafeOwner).
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = NULL);
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    ~CDialog() override;

    // Modeless
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = NULL);
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL);

    // Modal
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL);
    /// Runs the dialog until EndDialog; the result is EndDialog's, -1 when the dialog could not
    /// be made, IDABORT on another error. The owner is disabled meanwhile.
    virtual INT_PTR DoModal();
    /// Ends the modal dialog with a result once the current message has been dealt with.
    void EndDialog(int nResult);

    /// Sends the template's init block and shows the data; TRUE lets the framework set the
    /// focus to the first control that takes it.
    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont* pFont);

    void NextDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 0, 0); }
    void PrevDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 1, 0); }
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void SetDefID(UINT nID) { ::SendMessage(m_hWnd, DM_SETDEFID, nID, 0); }
    DWORD GetDefID() const;
    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }
    /// The help context is HID_BASE_RESOURCE + nIDR; it starts as the template's number.
    void SetHelpID(UINT nIDR) { m_nIDHelp = nIDR; }

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    CDialog() = default;

    /// Exchanges the data and ends with IDOK; stays open when a datum is not valid.
    virtual void OnOK();
    virtual void OnCancel();

    LRESULT AnswerInitDialog(WPARAM wParam, LPARAM lParam);
    LRESULT AnswerSetFont(WPARAM wParam, LPARAM lParam);
    LRESULT OnCommandHelp(WPARAM wParam, LPARAM lParam);
    LRESULT OnHelpHitTest(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

    UINT m_nIDHelp = 0;
    LPCTSTR m_lpszTemplateName = nullptr;
    CWnd* m_pParentWnd = nullptr;

private:
    friend class CDataExchange;

    HWND CreateFrom(LPCDLGTEMPLATE dialogTemplate, HWND owner, HINSTANCE instance,
                    bool* initialised);
    bool CreateModeless(LPCDLGTEMPLATE dialogTemplate, HINSTANCE instance);
    void TakeTemplateName(LPCTSTR name);

    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    HINSTANCE m_templateModule = nullptr; // which the window's template is from
    bool* m_initialised = nullptr;        // to be set when OnInitDialog has returned
};
