// The system's own dialogs: for a colour, for files.
#pragma once

#include "dialog.h"
#include "position.h"

#include <commdlg.h>

/// The base of the system's dialogs. While one is shown m_hWnd is its window, and the last active
/// window of the application owns it and is disabled, whatever the parent.
class AFXRT_API CCommonDialog : public CDialog {
    DECLARE_DYNAMIC(CCommonDialog)

public:
    /// pParentWnd: null lets the framework find the owner (CWnd::GetSafeOwner).
    explicit CCommonDialog(CWnd* pParentWnd);

protected:
    // The keys OK and Cancel are the system's.
    void OnOK() override;
    void OnCancel() override;
};

/// Asks for a colour.
class AFXRT_API CColorDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CColorDialog)

public:
    /// clrInit: selected at first; dwFlags: CC_...
    CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = NULL);

    /// What the system is asked; may be changed before DoModal.
    CHOOSECOLOR m_cc;

    /// IDOK or IDCANCEL; CommDlgExtendedError tells a failure from the user's Cancel.
    INT_PTR DoModal() override;
    /// The colour chosen.
    COLORREF GetColor() const;
    /// Selects a colour while the dialog is shown.
    void SetCurrentColor(COLORREF clr);
    /// The 16 colours that the user can define, white at first; they last as long as the process.
    static COLORREF* PASCAL GetSavedCustomColors();

protected:
    /// Called when the user takes the colour (GetColor): nonzero keeps the dialog open.
    virtual BOOL OnColorOK();

private:
    static UINT_PTR CALLBACK Hook(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK WatchOwner(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                       UINT_PTR id, DWORD_PTR dialog);
    bool Refuses();
};

/// Asks for files to open or for a name to save under.
class AFXRT_API CFileDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFileDialog)

public:
    /// bOpenFileDialog: TRUE opens, FALSE saves. lpszDefExt: appended to a name without extension;
    /// null: none is. dwFlags: OFN_... lpszFilter: "text|mask;mask|text|mask||", null: no filter.
    /// dwSize: bytes of OPENFILENAME, 0: the whole of it. bVistaStyle changes nothing here.
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = NULL,
                         LPCTSTR lpszFileName = NULL,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                         LPCTSTR lpszFilter = NULL, CWnd* pParentWnd = NULL, DWORD dwSize = 0,
                         BOOL bVistaStyle = TRUE);

    /// What the system is asked; may be changed before DoModal. With OFN_ALLOWMULTISELECT give it
    /// a buffer that takes all the names (lpstrFile, nMaxFile).
    OPENFILENAME m_ofn;
    const OPENFILENAME& GetOFN() const { return m_ofn; }
    OPENFILENAME& GetOFN() { return m_ofn; }

    /// IDOK or IDCANCEL; CommDlgExtendedError tells a failure from the user's Cancel.
    INT_PTR DoModal() override;

    /// The chosen file: "C:\FILES\TEXT.DAT", "TEXT.DAT", "DAT", "TEXT". Of several files take
    /// the positions.
    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileExt() const;
    CString GetFileTitle() const;
    BOOL GetReadOnlyPref() const { return (m_ofn.Flags & OFN_READONLY) != 0; }
    /// Walk through the chosen files, one or several: until the position is null.
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION& pos) const;

    // Only while the dialog is shown
    CString GetFolderPath() const;
    void SetDefExt(LPCSTR lpsz);
    void SetControlText(int nID, LPCSTR lpsz);
    void SetControlText(int nID, const wchar_t* lpsz);
    void HideControl(int nID);

protected:
    /// Called when the user takes the name (GetPathName): 1 keeps the dialog open.
    virtual BOOL OnFileNameOK();
    /// OFN_SHAREWARN asks the system to tell the user, OFN_SHARENOWARN not to.
    virtual UINT OnShareViolation(LPCTSTR lpszPathName);
    virtual void OnInitDone();
    virtual void OnFileNameChange();
    virtual void OnFolderChange();
    virtual void OnTypeChange();

private:
    static UINT_PTR CALLBACK Hook(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnDialogNotify(const OFNOTIFY& notification);
    CString AskDialog(UINT message) const;

    const BOOL m_bOpenFileDialog;
    CString m_strDefExt;
    CString m_strFilter;
    TCHAR m_szFileName[MAX_PATH] = {};
    TCHAR m_szFileTitle[MAX_PATH] = {};
};
