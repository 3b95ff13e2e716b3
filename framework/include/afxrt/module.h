// Modules: each application and each regular DLL has a state of its own (its application
// object, its instance and resource handles, its window procedure); each thread has a current
// one. And the chain of modules in which resources are looked for.
#pragma once

#include "cmdtarget.h"
#include "string.h"

class CDynLinkLibrary;
class CWinApp;
class CWinThread;

/// The state of one module.
class AFXRT_API AFX_MODULE_STATE {
public:
    /// bDLL: whether the module is a DLL; pfnAfxWndProc: the window procedure that the module's
    /// windows get, which makes this state current for each message.
    AFX_MODULE_STATE(BOOL bDLL, WNDPROC pfnAfxWndProc);
    ~AFX_MODULE_STATE();
    AFX_MODULE_STATE(const AFX_MODULE_STATE&) = delete;
    AFX_MODULE_STATE& operator=(const AFX_MODULE_STATE&) = delete;

    CWinApp* m_pCurrentWinApp = nullptr;
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr;
    const BOOL m_bDLL;
    const WNDPROC m_pfnAfxWndProc;
    /// Language module of an application; a DLL's is in its resource-chain entry.
    HINSTANCE m_hLanguageModule = nullptr;
};

/// The state current in this thread: the application's unless a module made its own current.
AFXRT_API AFX_MODULE_STATE* AFXAPI AfxGetModuleState();
/// Makes a state current in this thread and returns the one that was.
AFXRT_API AFX_MODULE_STATE* AFXAPI AfxSetModuleState(AFX_MODULE_STATE* pNewState);
/// The state of the application itself.
AFXRT_API AFX_MODULE_STATE* AFXAPI AfxGetAppModuleState();
/// The state of the module that the call is linked into.
AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState();

/// Keeps a state current until the end of the scope.
class AFXRT_API AFX_MAINTAIN_STATE {
public:
    explicit AFX_MAINTAIN_STATE(AFX_MODULE_STATE* pModuleState);
    ~AFX_MAINTAIN_STATE();
    AFX_MAINTAIN_STATE(const AFX_MAINTAIN_STATE&) = delete;
    AFX_MAINTAIN_STATE& operator=(const AFX_MAINTAIN_STATE&) = delete;

private:
    AFX_MODULE_STATE* m_pPrevModuleState;
};

#define AFX_MANAGE_STATE(p) AFX_MAINTAIN_STATE afxMaintainState(p);

/// The application object of the current module state, or NULL.
AFXRT_API CWinApp* AFXAPI AfxGetApp();
/// The thread object of the calling thread: the application object on the thread that made it,
/// NULL on any other.
AFXRT_API CWinThread* AFXAPI AfxGetThread();
/// The main window of AfxGetThread(), or NULL.
AFXRT_API CWnd* AFXAPI AfxGetMainWnd();
AFXRT_API HINSTANCE AFXAPI AfxGetInstanceHandle();
AFXRT_API HINSTANCE AFXAPI AfxGetResourceHandle();
AFXRT_API void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);
AFXRT_API LPCTSTR AFXAPI AfxGetAppName();

/// The module that holds a resource. Searched in this order: the current module's resources
/// (AfxGetResourceHandle); the chain's modules, newest first; the language modules, the current
/// module's and then the chain's; the chain's system modules; the framework itself. NULL: no
/// module has it.
AFXRT_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
/// Reads a string of the resource chain into a buffer; its length, 0 when there is none.
AFXRT_API int AFXAPI AfxLoadString(UINT nID, LPTSTR lpszBuf, UINT nMaxBuf = 256);

/// What a DLL that offers resources keeps of itself.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource; ///< where its texts are: its language module, else the module itself
    CRuntimeClass* pFirstSharedClass;
};

/// One module in the resource chain, from its construction to its destruction. The chain is
/// the process's: a lookup made under any module's state sees it.
class AFXRT_API CDynLinkLibrary : public CCmdTarget {
    DECLARE_DYNAMIC(CDynLinkLibrary)

public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
    BOOL m_bSystem;
};

/// Fills the structure for a module and finds its language module: a file of resources beside
/// it, named after it and a language (User's language, its main one, the system's, its main
/// one, LOC), loaded by its full path and never through the search path.
AFXRT_API BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
/// Takes the module's entries out of the chain, deletes them, and lets its language module go.
AFXRT_API void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

/// Prepares the framework for the module whose state is current. FALSE on failure.
AFXRT_API BOOL AFXAPI AfxCoreInitModule();
/// Sets the current module's handles and the names of its application object. hPrevInstance is
/// always NULL. FALSE: the application cannot start.
AFXRT_API BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine,
                                 int nCmdShow);
/// Undoes AfxWinInit for the current module.
AFXRT_API void AFXAPI AfxWinTerm();
/// Lets go of what the framework keeps for the calling thread.
AFXRT_API void AFXAPI AfxTermThread(HINSTANCE hInstTerm = NULL);

namespace afx_internal {
/// Reads a string of the resource chain, going on past modules whose block lacks it.
AFXRT_API BOOL LoadStringFromChain(UINT id, CString& text);
} // namespace afx_internal
