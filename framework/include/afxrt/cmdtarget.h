// Command targets and their message maps: tables that tie messages, commands and
// notifications to member functions.
#pragma once

#include "object.h"

#include <bit>

class CCmdTarget;
class CWnd;
class AFX_MODULE_STATE;

#define afx_msg

/// A message-map handler, whatever its own signature: nSig tells how to call it.
typedef void (AFX_MSG_CALL CCmdTarget::*AFX_PMSG)();

/// One row of a message map.
struct AFX_MSGMAP_ENTRY {
    UINT nMessage; ///< the Windows message
    UINT nCode;    ///< control notification code, 0 for a command or a plain message
    UINT nID;      ///< first control or command identifier
    UINT nLastID;  ///< last control or command identifier
    UINT_PTR nSig; ///< the handler's signature; for registered messages where their number is
    AFX_PMSG pfn;
};

/// A class's message map and the way to its base class's.
struct AFX_MSGMAP {
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

/// What a handler of a notification with data is called with.
struct AFX_NOTIFY {
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

/// Filled by OnCmdMsg instead of calling the handler, to learn who would handle a command.
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget;
    void (AFX_MSG_CALL CCmdTarget::*pmf)();
};

/// The notification code of a plain command.
#define CN_COMMAND 0

namespace afx_internal {
/// The signatures of handlers, by result and arguments.
enum Signature : UINT_PTR {
    sigEnd = 0,       // the end of a map
    sigVoid,          // void ()
    sigBool,          // BOOL ()
    sigUint,          // UINT ()
    sigCommandId,     // void (UINT nID), of a range of identifiers
    sigCommandEx,     // BOOL (UINT nID), FALSE: not handled after all
    sigNotify,        // void (NMHDR*, LRESULT*)
    sigNotifyId,      // void (UINT nID, NMHDR*, LRESULT*)
    sigNotifyEx,      // BOOL (UINT nID, NMHDR*, LRESULT*)
    sigMessage,       // LRESULT (WPARAM, LPARAM)
    sigRegistered,    // the same; nSig is the address of the message's number
    sigCreate,        // int (LPCREATESTRUCT)
    sigHelpInfo,      // BOOL (HELPINFO*)
    sigDropFiles,     // void (HDROP)
    sigMouse,         // void (UINT nFlags, CPoint)
    sigMouseWheel,    // BOOL (UINT nFlags, short zDelta, CPoint)
    sigKey,           // void (UINT nChar, UINT nRepCnt, UINT nFlags)
    sigSize,          // void (UINT nType, int cx, int cy)
    sigMove,          // void (int x, int y)
    sigBoolArg,       // void (BOOL)
    sigWindow,        // void (CWnd*)
    sigWindowUint,    // void (CWnd*, CPoint)
    sigShow,          // void (BOOL bShow, UINT nStatus)
    sigActivate,      // void (UINT nState, CWnd*, BOOL bMinimized)
    sigTimer,         // void (UINT_PTR)
    sigScroll,        // void (UINT nSBCode, UINT nPos, CScrollBar*)
    sigSetCursor,     // BOOL (CWnd*, UINT nHitTest, UINT message)
    sigEraseBkgnd,    // BOOL (CDC*)
    sigCtlColor,      // HBRUSH (CDC*, CWnd*, UINT nCtlColor)
    sigDrawItem,      // void (int nIDCtl, LPDRAWITEMSTRUCT)
    sigMeasureItem,   // void (int nIDCtl, LPMEASUREITEMSTRUCT)
    sigMinMaxInfo,    // void (MINMAXINFO*)
    sigWindowPos,     // void (WINDOWPOS*)
    sigSysCommand,    // void (UINT nID, LPARAM)
    sigHitTest,       // LRESULT (CPoint)
    sigSettingChange, // void (UINT uFlags, LPCTSTR)
    sigEnterIdle,     // void (UINT nWhy, CWnd*)
};

/// Looks a message, command or notification up in a map and in those of its base classes.
AFXRT_API const AFX_MSGMAP_ENTRY* FindMessageEntry(const AFX_MSGMAP* map, UINT message, UINT code,
                                                   UINT id);
} // namespace afx_internal

/// The base of all classes that have a message map.
class AFXRT_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget();

    /// Routes a command or notification to this object's map; nonzero when it was handled.
    /// nCode: the notification code; for a WM_NOTIFY one the message in the high word, and
    /// pExtra points to an AFX_NOTIFY. With pHandlerInfo nothing is called.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    /// The wait cursor, while a command takes its time.
    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();

    /// The module state that was current when the object was made.
    AFX_MODULE_STATE* m_pModuleState;

protected:
    virtual const AFX_MSGMAP* GetMessageMap() const;
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
};

#define DECLARE_MESSAGE_MAP()                                                                      \
protected:                                                                                         \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                           \
    virtual const AFX_MSGMAP* GetMessageMap() const;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                     \
    const AFX_MSGMAP* theClass::GetMessageMap() const {                                            \
        return GetThisMessageMap();                                                                \
    }                                                                                              \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap() {                                       \
        [[maybe_unused]] typedef theClass ThisClass;                                               \
        typedef baseClass TheBaseClass;                                                            \
        static const AFX_MSGMAP_ENTRY entries[] = {

#define END_MESSAGE_MAP()                                                                          \
    { 0, 0, 0, 0, afx_internal::sigEnd, nullptr }                                                  \
    }                                                                                              \
    ;                                                                                              \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, entries};              \
    return &messageMap;                                                                            \
    }

// A handler's address as AFX_PMSG: checked against the signature and the class it must belong
// to, then stored under the common type. The call converts it back to the checked type.
#define AFXRT_PMF(base, result, args, memberFxn)                                                   \
    std::bit_cast<AFX_PMSG>(static_cast<result(AFX_MSG_CALL base::*) args>(memberFxn))

#define ON_COMMAND(id, memberFxn)                                                                  \
    {WM_COMMAND,                                                                                   \
     CN_COMMAND,                                                                                   \
     (UINT)(id),                                                                                   \
     (UINT)(id),                                                                                   \
     afx_internal::sigVoid,                                                                        \
     AFXRT_PMF(CCmdTarget, void, (), memberFxn)},
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                    \
    {WM_COMMAND,                                                                                   \
     CN_COMMAND,                                                                                   \
     (UINT)(id),                                                                                   \
     (UINT)(idLast),                                                                               \
     afx_internal::sigCommandId,                                                                   \
     AFXRT_PMF(CCmdTarget, void, (UINT), memberFxn)},
#define ON_COMMAND_EX(id, memberFxn)                                                               \
    {WM_COMMAND,                                                                                   \
     CN_COMMAND,                                                                                   \
     (UINT)(id),                                                                                   \
     (UINT)(id),                                                                                   \
     afx_internal::sigCommandEx,                                                                   \
     AFXRT_PMF(CCmdTarget, BOOL, (UINT), memberFxn)},
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                     \
    {WM_COMMAND, (UINT)(WORD)(wNotifyCode), (UINT)(id),                                            \
     (UINT)(id), afx_internal::sigVoid,     AFXRT_PMF(CCmdTarget, void, (), memberFxn)},
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                       \
    {WM_COMMAND,     (UINT)(WORD)(wNotifyCode),  (UINT)(id),                                       \
     (UINT)(idLast), afx_internal::sigCommandId, AFXRT_PMF(CCmdTarget, void, (UINT), memberFxn)},
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                      \
    {WM_NOTIFY,                                                                                    \
     (UINT)(WORD)(int)(wNotifyCode),                                                               \
     (UINT)(id),                                                                                   \
     (UINT)(id),                                                                                   \
     afx_internal::sigNotify,                                                                      \
     AFXRT_PMF(CCmdTarget, void, (NMHDR*, LRESULT*), memberFxn)},
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn)                                                   \
    {WM_NOTIFY,                                                                                    \
     (UINT)(WORD)(int)(wNotifyCode),                                                               \
     (UINT)(id),                                                                                   \
     (UINT)(id),                                                                                   \
     afx_internal::sigNotifyEx,                                                                    \
     AFXRT_PMF(CCmdTarget, BOOL, (UINT, NMHDR*, LRESULT*), memberFxn)},
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                        \
    {WM_NOTIFY,                                                                                    \
     (UINT)(WORD)(int)(wNotifyCode),                                                               \
     (UINT)(id),                                                                                   \
     (UINT)(idLast),                                                                               \
     afx_internal::sigNotifyId,                                                                    \
     AFXRT_PMF(CCmdTarget, void, (UINT, NMHDR*, LRESULT*), memberFxn)},
#define ON_MESSAGE(message, memberFxn)                                                             \
    {(UINT)(message),                                                                              \
     0,                                                                                            \
     0,                                                                                            \
     0,                                                                                            \
     afx_internal::sigMessage,                                                                     \
     AFXRT_PMF(CWnd, LRESULT, (WPARAM, LPARAM), memberFxn)},
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                         \
    {0xC000,                                                                                       \
     0,                                                                                            \
     0,                                                                                            \
     0,                                                                                            \
     (UINT_PTR)(UINT*)(&nMessageVariable),                                                         \
     AFXRT_PMF(CWnd, LRESULT, (WPARAM, LPARAM), memberFxn)},

#define ON_BN_CLICKED(id, memberFxn)       ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn)      ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn)     ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn)      ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn)     ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn)        ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn)        ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn)      ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn)       ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn)       ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn)       ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_LBN_ERRSPACE(id, memberFxn)     ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn)    ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn)       ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn)    ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn)     ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn)    ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_ERRSPACE(id, memberFxn)     ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn)    ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn)       ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn)     ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn)    ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn)   ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn)   ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn)     ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn)      ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn)     ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn)      ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn)       ON_CONTROL(STN_DBLCLK, id, memberFxn)

#define AFXRT_ON_WM(message, sig, result, args, handler)                                           \
    {message, 0, 0, 0, afx_internal::sig, AFXRT_PMF(CWnd, result, args, &ThisClass::handler)},

#define ON_WM_CREATE()         AFXRT_ON_WM(WM_CREATE, sigCreate, int, (LPCREATESTRUCT), OnCreate)
#define ON_WM_DESTROY()        AFXRT_ON_WM(WM_DESTROY, sigVoid, void, (), OnDestroy)
#define ON_WM_NCDESTROY()      AFXRT_ON_WM(WM_NCDESTROY, sigVoid, void, (), OnNcDestroy)
#define ON_WM_CLOSE()          AFXRT_ON_WM(WM_CLOSE, sigVoid, void, (), OnClose)
#define ON_WM_PAINT()          AFXRT_ON_WM(WM_PAINT, sigVoid, void, (), OnPaint)
#define ON_WM_ERASEBKGND()     AFXRT_ON_WM(WM_ERASEBKGND, sigEraseBkgnd, BOOL, (CDC*), OnEraseBkgnd)
#define ON_WM_SIZE()           AFXRT_ON_WM(WM_SIZE, sigSize, void, (UINT, int, int), OnSize)
#define ON_WM_MOVE()           AFXRT_ON_WM(WM_MOVE, sigMove, void, (int, int), OnMove)
#define ON_WM_ENABLE()         AFXRT_ON_WM(WM_ENABLE, sigBoolArg, void, (BOOL), OnEnable)
#define ON_WM_SHOWWINDOW()     AFXRT_ON_WM(WM_SHOWWINDOW, sigShow, void, (BOOL, UINT), OnShowWindow)
#define ON_WM_SETFOCUS()       AFXRT_ON_WM(WM_SETFOCUS, sigWindow, void, (CWnd*), OnSetFocus)
#define ON_WM_KILLFOCUS()      AFXRT_ON_WM(WM_KILLFOCUS, sigWindow, void, (CWnd*), OnKillFocus)
#define ON_WM_TIMER()          AFXRT_ON_WM(WM_TIMER, sigTimer, void, (UINT_PTR), OnTimer)
#define ON_WM_CANCELMODE()     AFXRT_ON_WM(WM_CANCELMODE, sigVoid, void, (), OnCancelMode)
#define ON_WM_SYSCOLORCHANGE() AFXRT_ON_WM(WM_SYSCOLORCHANGE, sigVoid, void, (), OnSysColorChange)
#define ON_WM_GETDLGCODE()     AFXRT_ON_WM(WM_GETDLGCODE, sigUint, UINT, (), OnGetDlgCode)
#define ON_WM_HELPINFO()       AFXRT_ON_WM(WM_HELP, sigHelpInfo, BOOL, (HELPINFO*), OnHelpInfo)
#define ON_WM_DROPFILES()      AFXRT_ON_WM(WM_DROPFILES, sigDropFiles, void, (HDROP), OnDropFiles)
#define ON_WM_QUERYENDSESSION()                                                                    \
    AFXRT_ON_WM(WM_QUERYENDSESSION, sigBool, BOOL, (), OnQueryEndSession)
#define ON_WM_ENDSESSION() AFXRT_ON_WM(WM_ENDSESSION, sigBoolArg, void, (BOOL), OnEndSession)
#define ON_WM_CHAR()       AFXRT_ON_WM(WM_CHAR, sigKey, void, (UINT, UINT, UINT), OnChar)
#define ON_WM_KEYDOWN()    AFXRT_ON_WM(WM_KEYDOWN, sigKey, void, (UINT, UINT, UINT), OnKeyDown)
#define ON_WM_KEYUP()      AFXRT_ON_WM(WM_KEYUP, sigKey, void, (UINT, UINT, UINT), OnKeyUp)
#define ON_WM_SYSKEYDOWN()                                                                         \
    AFXRT_ON_WM(WM_SYSKEYDOWN, sigKey, void, (UINT, UINT, UINT), OnSysKeyDown)
#define ON_WM_SYSKEYUP()  AFXRT_ON_WM(WM_SYSKEYUP, sigKey, void, (UINT, UINT, UINT), OnSysKeyUp)
#define ON_WM_MOUSEMOVE() AFXRT_ON_WM(WM_MOUSEMOVE, sigMouse, void, (UINT, CPoint), OnMouseMove)
#define ON_WM_LBUTTONDOWN()                                                                        \
    AFXRT_ON_WM(WM_LBUTTONDOWN, sigMouse, void, (UINT, CPoint), OnLButtonDown)
#define ON_WM_LBUTTONUP() AFXRT_ON_WM(WM_LBUTTONUP, sigMouse, void, (UINT, CPoint), OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK()                                                                      \
    AFXRT_ON_WM(WM_LBUTTONDBLCLK, sigMouse, void, (UINT, CPoint), OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN()                                                                        \
    AFXRT_ON_WM(WM_RBUTTONDOWN, sigMouse, void, (UINT, CPoint), OnRButtonDown)
#define ON_WM_RBUTTONUP() AFXRT_ON_WM(WM_RBUTTONUP, sigMouse, void, (UINT, CPoint), OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK()                                                                      \
    AFXRT_ON_WM(WM_RBUTTONDBLCLK, sigMouse, void, (UINT, CPoint), OnRButtonDblClk)
#define ON_WM_MBUTTONDOWN()                                                                        \
    AFXRT_ON_WM(WM_MBUTTONDOWN, sigMouse, void, (UINT, CPoint), OnMButtonDown)
#define ON_WM_MBUTTONUP() AFXRT_ON_WM(WM_MBUTTONUP, sigMouse, void, (UINT, CPoint), OnMButtonUp)
#define ON_WM_MOUSEWHEEL()                                                                         \
    AFXRT_ON_WM(WM_MOUSEWHEEL, sigMouseWheel, BOOL, (UINT, short, CPoint), OnMouseWheel)
#define ON_WM_MOUSELEAVE() AFXRT_ON_WM(WM_MOUSELEAVE, sigVoid, void, (), OnMouseLeave)
#define ON_WM_CAPTURECHANGED()                                                                     \
    AFXRT_ON_WM(WM_CAPTURECHANGED, sigWindow, void, (CWnd*), OnCaptureChanged)
#define ON_WM_CONTEXTMENU()                                                                        \
    AFXRT_ON_WM(WM_CONTEXTMENU, sigWindowUint, void, (CWnd*, CPoint), OnContextMenu)
#define ON_WM_SETCURSOR()                                                                          \
    AFXRT_ON_WM(WM_SETCURSOR, sigSetCursor, BOOL, (CWnd*, UINT, UINT), OnSetCursor)
#define ON_WM_NCHITTEST() AFXRT_ON_WM(WM_NCHITTEST, sigHitTest, LRESULT, (CPoint), OnNcHitTest)
#define ON_WM_HSCROLL()                                                                            \
    AFXRT_ON_WM(WM_HSCROLL, sigScroll, void, (UINT, UINT, CScrollBar*), OnHScroll)
#define ON_WM_VSCROLL()                                                                            \
    AFXRT_ON_WM(WM_VSCROLL, sigScroll, void, (UINT, UINT, CScrollBar*), OnVScroll)
#define ON_WM_CTLCOLOR()                                                                           \
    AFXRT_ON_WM(WM_CTLCOLORBTN, sigCtlColor, HBRUSH, (CDC*, CWnd*, UINT), OnCtlColor)
#define ON_WM_DRAWITEM()                                                                           \
    AFXRT_ON_WM(WM_DRAWITEM, sigDrawItem, void, (int, LPDRAWITEMSTRUCT), OnDrawItem)
#define ON_WM_MEASUREITEM()                                                                        \
    AFXRT_ON_WM(WM_MEASUREITEM, sigMeasureItem, void, (int, LPMEASUREITEMSTRUCT), OnMeasureItem)
#define ON_WM_ACTIVATE()                                                                           \
    AFXRT_ON_WM(WM_ACTIVATE, sigActivate, void, (UINT, CWnd*, BOOL), OnActivate)
#define ON_WM_GETMINMAXINFO()                                                                      \
    AFXRT_ON_WM(WM_GETMINMAXINFO, sigMinMaxInfo, void, (MINMAXINFO*), OnGetMinMaxInfo)
#define ON_WM_WINDOWPOSCHANGING()                                                                  \
    AFXRT_ON_WM(WM_WINDOWPOSCHANGING, sigWindowPos, void, (WINDOWPOS*), OnWindowPosChanging)
#define ON_WM_WINDOWPOSCHANGED()                                                                   \
    AFXRT_ON_WM(WM_WINDOWPOSCHANGED, sigWindowPos, void, (WINDOWPOS*), OnWindowPosChanged)
#define ON_WM_SYSCOMMAND()                                                                         \
    AFXRT_ON_WM(WM_SYSCOMMAND, sigSysCommand, void, (UINT, LPARAM), OnSysCommand)
#define ON_WM_SETTINGCHANGE()                                                                      \
    AFXRT_ON_WM(WM_SETTINGCHANGE, sigSettingChange, void, (UINT, LPCTSTR), OnSettingChange)
#define ON_WM_ENTERIDLE() AFXRT_ON_WM(WM_ENTERIDLE, sigEnterIdle, void, (UINT, CWnd*), OnEnterIdle)
