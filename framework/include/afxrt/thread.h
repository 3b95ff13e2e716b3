// The thread of the user interface and its message loop.
#pragma once

#include "exception.h"
#include "module.h"

/// A thread with a message loop. The application object is the main thread's.
class AFXRT_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    ~CWinThread() override;

    virtual BOOL InitInstance();
    virtual int ExitInstance();
    /// The message loop, until the thread is told to quit; the result is ExitInstance's.
    virtual int Run();
    /// Takes one message from the queue and dispatches it; FALSE on the one that says quit.
    virtual BOOL PumpMessage();
    /// Offers a message to the windows it is meant for before it is dispatched: TRUE, and it
    /// goes no further.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Idle work; TRUE asks to be called again. The default lets temporary objects go.
    virtual BOOL OnIdle(LONG lCount);
    /// Whether idle work is due after this message.
    virtual BOOL IsIdleMessage(MSG* pMsg);
    /// Deals with an exception that a message handler let out; the result is the message's. The
    /// default tells the user, by the exception's own text or else that the command, or the
    /// application, has failed. An exception that is none of the framework's comes as a
    /// CSimpleException; an override finds it in std::current_exception().
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    virtual CWnd* GetMainWnd();
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam);

    operator HANDLE() const { return m_hThread; }

    CWnd* m_pMainWnd = nullptr;
    CWnd* m_pActiveWnd = nullptr;
    BOOL m_bAutoDelete = TRUE;
    HANDLE m_hThread;
    DWORD m_nThreadID;
};
