// The application object: names, profile, help, message boxes.
#pragma once

#include "thread.h"

/// Which help system CWinApp::ShowHelp calls.
enum AFX_HELP_TYPE { afxWinHelp = 0, afxHTMLHelp = 1 };

/// The one object of a module that stands for the module as a program.
class AFXRT_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)

public:
    /// lpszAppName: NULL takes the string AFX_IDS_APP_TITLE, or else the file's own name.
    explicit CWinApp(LPCTSTR lpszAppName = NULL);
    ~CWinApp() override;

    BOOL InitInstance() override;
    int ExitInstance() override;
    int Run() override;
    virtual BOOL InitApplication();

    /// What AfxMessageBox does. nIDPrompt: the help context of the message.
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);

    // Help
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    virtual void HtmlHelp(DWORD_PTR dwData, UINT nCmd = 0x000F);
    /// The one of the two that m_eHelpType names.
    virtual void ShowHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    void EnableHtmlHelp();
    void SetHelpMode(AFX_HELP_TYPE eHelpType);
    AFX_HELP_TYPE GetHelpMode();
    afx_msg void OnHelp();

    // Profile: an .INI file, or the registry once SetRegistryKey was called. Names of sections
    // and entries are not case-sensitive.
    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = NULL);
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);
    /// HKEY_CURRENT_USER\Software\registry key\profile name; the caller closes it.
    HKEY GetAppRegistryKey();
    HKEY GetSectionKey(LPCTSTR lpszSection);

    // Resources, through the resource chain
    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const;
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const;
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const;
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const;

    virtual void DoWaitCursor(int nCode);

    HINSTANCE m_hInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    // These belong to the application object, which frees them: give it memory of _wcsdup.
    LPCTSTR m_pszAppName = nullptr;
    LPCTSTR m_pszExeName = nullptr;
    LPCTSTR m_pszHelpFilePath = nullptr;
    LPCTSTR m_pszProfileName = nullptr;
    LPCTSTR m_pszRegistryKey = nullptr;
    AFX_HELP_TYPE m_eHelpType = afxWinHelp;
    BOOL m_bHelpMode = FALSE;

    /// Fills the names above from the module's file name; AfxWinInit calls it.
    void TakeModuleNames();

protected:
    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);

private:
    AFX_MODULE_STATE* m_pState;
    int m_waits = 0;
    HCURSOR m_cursorBeforeWait = nullptr;
};

/// Shows a message, owned by the active window; the icon is the exclamation mark unless nType
/// names another. nIDHelp: the message's help context. The result is the pressed button's.
AFXRT_API int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
/// The same with a string resource, whose number is the help context unless one is given.
AFXRT_API int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = (UINT)-1);

/// The hourglass, for as long as the object lives.
class AFXRT_API CWaitCursor {
public:
    CWaitCursor();
    ~CWaitCursor();
    void Restore();
};

namespace afx_internal {
/// How CWinApp::HtmlHelp reaches the system's help viewer; replaceable where there is none.
typedef HWND(WINAPI* HtmlHelpFunction)(HWND hwndCaller, LPCTSTR file, UINT command, DWORD_PTR data);
AFXRT_API HtmlHelpFunction SetHtmlHelpFunction(HtmlHelpFunction function);
} // namespace afx_internal
