#include "TestApp.h"

#include <kit/kit.h>

#include <string>

namespace Tests {

const UINT registeredMessage = ::RegisterWindowMessage(L"Framework tests: registered");

// Writes down which handler was called with what.
class Base : public CWnd {
public:
    std::vector<std::string> log;
    LRESULT OnPrivate(WPARAM wParam, LPARAM lParam) {
        log.push_back("private " + std::to_string(wParam) + " " + std::to_string(lParam));
        return 42;
    }
    LRESULT OnRegistered(WPARAM, LPARAM) {
        log.push_back("registered");
        return 43;
    }
    void OnOne() { log.push_back("base one"); }
    void OnTwo() { log.push_back("base two"); }
    void OnRange(UINT id) { log.push_back("range " + std::to_string(id)); }
    void OnEdit() { log.push_back("edit change"); }
    void OnList(NMHDR* header, LRESULT* result) {
        log.push_back("list " + std::to_string(header->idFrom));
        *result = 7;
    }
    afx_msg void OnMouseMove(UINT flags, CPoint point) {
        log.push_back("mouse " + std::to_string(flags) + " " + std::to_string(point.x) + " " +
                      std::to_string(point.y));
    }
    afx_msg void OnSize(UINT, int cx, int cy) {
        log.push_back("size " + std::to_string(cx) + " " + std::to_string(cy));
    }
    afx_msg void OnTimer(UINT_PTR id) { log.push_back("timer " + std::to_string(id)); }
    afx_msg BOOL OnHelpInfo(HELPINFO*) {
        log.push_back("help");
        return TRUE;
    }
    afx_msg void OnDropFiles(HDROP drop) {
        log.push_back(drop == reinterpret_cast<HDROP>(5) ? "drop" : "drop of something else");
    }
    afx_msg BOOL OnEraseBkgnd(CDC* dc) {
        log.push_back(dc->GetSafeHdc() == reinterpret_cast<HDC>(6) ? "erase" : "erase elsewhere");
        return FALSE;
    }
    BOOL CreateTopLevel() {
        return CreateEx(0, nullptr, L"", WS_OVERLAPPEDWINDOW, 0, 0, 200, 100, nullptr, nullptr);
    }
    DECLARE_MESSAGE_MAP()
};

class Derived : public Base {
public:
    void OnOne() { log.push_back("derived one"); }
    DECLARE_MESSAGE_MAP()
};

} // namespace Tests

namespace Tests {

BEGIN_MESSAGE_MAP(Base, CWnd)
    ON_MESSAGE(WM_USER + 7, &Base::OnPrivate)
    ON_REGISTERED_MESSAGE(registeredMessage, &Base::OnRegistered)
    ON_COMMAND(1, &Base::OnOne)
    ON_COMMAND(2, &Base::OnTwo)
    ON_COMMAND_RANGE(10, 12, &Base::OnRange)
    ON_EN_CHANGE(3, &Base::OnEdit)
    ON_NOTIFY(LVN_ITEMCHANGED, 4, &Base::OnList)
    ON_WM_MOUSEMOVE()
    ON_WM_SIZE()
    ON_WM_TIMER()
    ON_WM_HELPINFO()
    ON_WM_DROPFILES()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(Derived, Base)
    ON_COMMAND(1, &Derived::OnOne)
END_MESSAGE_MAP()

} // namespace Tests

namespace {

using Tests::Derived;
using Log = std::vector<std::string>;

class MessageMap : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_window.CreateTopLevel());
        m_window.log.clear();
    }
    Derived m_window;
};

TEST_F(MessageMap, ADerivedEntryComesBeforeTheBasesOne) {
    m_window.SendMessage(WM_COMMAND, 1);
    m_window.SendMessage(WM_COMMAND, 2);
    m_window.SendMessage(WM_COMMAND, 99);
    EXPECT_EQ(m_window.log, (Log{"derived one", "base two"}));
}

TEST_F(MessageMap, ARangeTakesItsEndsAndNothingBeyond) {
    for (const WPARAM id : {9, 10, 11, 12, 13})
        m_window.SendMessage(WM_COMMAND, id);
    EXPECT_EQ(m_window.log, (Log{"range 10", "range 11", "range 12"}));
}

TEST_F(MessageMap, PrivateAndRegisteredMessagesReturnTheirResult) {
    EXPECT_EQ(m_window.SendMessage(WM_USER + 7, 8, 9), 42);
    EXPECT_EQ(m_window.SendMessage(Tests::registeredMessage), 43);
    EXPECT_EQ(m_window.SendMessage(WM_USER + 8), 0);
    EXPECT_EQ(m_window.log, (Log{"private 8 9", "registered"}));
}

TEST_F(MessageMap, AControlsNotificationIsKnownByItsCodeAndNumber) {
    const HWND control = ::CreateWindow(L"Static", L"", WS_CHILD, 0, 0, 1, 1, m_window.m_hWnd,
                                        reinterpret_cast<HMENU>(3), nullptr, nullptr);
    m_window.SendMessage(WM_COMMAND, MAKEWPARAM(3, EN_CHANGE), reinterpret_cast<LPARAM>(control));
    m_window.SendMessage(WM_COMMAND, MAKEWPARAM(3, EN_UPDATE), reinterpret_cast<LPARAM>(control));
    m_window.SendMessage(WM_COMMAND, MAKEWPARAM(4, EN_CHANGE), reinterpret_cast<LPARAM>(control));
    EXPECT_EQ(m_window.log, (Log{"edit change"}));
}

TEST_F(MessageMap, ANotificationWithDataGivesAResult) {
    const HWND control = ::CreateWindow(L"Static", L"", WS_CHILD, 0, 0, 1, 1, m_window.m_hWnd,
                                        reinterpret_cast<HMENU>(4), nullptr, nullptr);
    NMHDR header = {control, 4, static_cast<UINT>(LVN_ITEMCHANGED)};
    EXPECT_EQ(m_window.SendMessage(WM_NOTIFY, 4, reinterpret_cast<LPARAM>(&header)), 7);
    header.code = static_cast<UINT>(LVN_KEYDOWN);
    EXPECT_EQ(m_window.SendMessage(WM_NOTIFY, 4, reinterpret_cast<LPARAM>(&header)), 0);
    EXPECT_EQ(m_window.log, (Log{"list 4"}));
}

TEST_F(MessageMap, WindowsMessagesArriveTakenApart) {
    m_window.SendMessage(WM_MOUSEMOVE, MK_SHIFT, MAKELPARAM(11, static_cast<WORD>(-12)));
    m_window.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(13, 14));
    m_window.SendMessage(WM_TIMER, 15);
    HELPINFO help = {};
    EXPECT_TRUE(m_window.SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&help)));
    m_window.SendMessage(WM_DROPFILES, 5);
    m_window.SendMessage(WM_ERASEBKGND, 6);
    EXPECT_EQ(m_window.log,
              (Log{"mouse 4 11 -12", "size 13 14", "timer 15", "help", "drop", "erase"}));
}

TEST_F(MessageMap, OnCmdMsgTellsWhoWouldHandleACommand) {
    AFX_CMDHANDLERINFO info = {};
    EXPECT_TRUE(m_window.OnCmdMsg(2, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &m_window);
    EXPECT_FALSE(m_window.OnCmdMsg(99, CN_COMMAND, nullptr, &info));
    EXPECT_TRUE(m_window.log.empty());
    EXPECT_TRUE(m_window.OnCmdMsg(2, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(m_window.log, (Log{"base two"}));
}

// ---- Each kind of message, taken apart

// Writes down what its handlers are called with.
class Apart : public CWnd {
public:
    std::string seen;
    HWND other = nullptr; // a window that messages name

    BOOL CreateTopLevel() {
        if (!CreateEx(0, nullptr, L"", WS_OVERLAPPEDWINDOW, 0, 0, 200, 100, nullptr, nullptr))
            return FALSE;
        other =
            ::CreateWindow(L"Static", L"", WS_CHILD, 0, 0, 1, 1, m_hWnd, nullptr, nullptr, nullptr);
        return other != nullptr;
    }

    template <class... Args>
    void See(const char* what, Args... args) {
        seen = what;
        ((seen += " " + std::to_string(args)), ...);
    }
    bool IsOther(const CWnd* window) const { return window && window->m_hWnd == other; }

    afx_msg void OnShowWindow(BOOL show, UINT status) { See("show", show, status); }
    afx_msg void OnEnable(BOOL enable) { See("enable", enable); }
    afx_msg void OnMove(int x, int y) { See("move", x, y); }
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags) { See("key", key, repeats, flags); }
    afx_msg void OnChar(UINT key, UINT repeats, UINT flags) { See("char", key, repeats, flags); }
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint at) {
        See("wheel", flags, delta, at.x, at.y);
        return TRUE;
    }
    afx_msg void OnLButtonDown(UINT flags, CPoint at) { See("down", flags, at.x, at.y); }
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar) {
        See("scroll", code, position, IsOther(bar));
    }
    afx_msg void OnActivate(UINT state, CWnd* window, BOOL minimized) {
        See("activate", state, IsOther(window), minimized);
    }
    afx_msg void OnSetFocus(CWnd* window) { See("focus", IsOther(window)); }
    afx_msg void OnCaptureChanged(CWnd* window) { See("capture", IsOther(window)); }
    afx_msg void OnContextMenu(CWnd* window, CPoint at) {
        See("menu", IsOther(window), at.x, at.y);
    }
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hit, UINT message) {
        See("cursor", IsOther(window), hit, message);
        return TRUE;
    }
    afx_msg LRESULT OnNcHitTest(CPoint at) {
        See("hit", at.x, at.y);
        return HTCAPTION;
    }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* window, UINT kind) {
        See("colour", dc->GetSafeHdc() == reinterpret_cast<HDC>(6), IsOther(window), kind);
        return reinterpret_cast<HBRUSH>(7);
    }
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item) { See("draw", id, item->itemID); }
    afx_msg void OnMeasureItem(int id, LPMEASUREITEMSTRUCT item) {
        See("measure", id, item->itemID);
    }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info) { See("limits", info->ptMinTrackSize.x); }
    afx_msg void OnWindowPosChanged(WINDOWPOS* place) { See("place", place->cx); }
    afx_msg void OnSysCommand(UINT id, LPARAM at) { See("system", id, at); }
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section) {
        See("setting", flags, section[0] == L'x');
    }
    afx_msg void OnEnterIdle(UINT why, CWnd* window) { See("idle", why, IsOther(window)); }
    afx_msg UINT OnGetDlgCode() {
        See("code");
        return DLGC_WANTTAB;
    }
    afx_msg BOOL OnQueryEndSession() {
        See("may end");
        return FALSE;
    }
    BOOL OnMaybe(UINT id) {
        See("maybe", id);
        return id == 20;
    }
    void OnClicks(UINT id) { See("clicks", id); }
    void OnNotifyOne(UINT id, NMHDR* header, LRESULT* result) {
        See("notify", id, header->code == static_cast<UINT>(NM_CLICK));
        *result = 9;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Apart, CWnd)
    ON_WM_SHOWWINDOW()
    ON_WM_ENABLE()
    ON_WM_MOVE()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_MOUSEWHEEL()
    ON_WM_LBUTTONDOWN()
    ON_WM_HSCROLL()
    ON_WM_ACTIVATE()
    ON_WM_SETFOCUS()
    ON_WM_CAPTURECHANGED()
    ON_WM_CONTEXTMENU()
    ON_WM_SETCURSOR()
    ON_WM_NCHITTEST()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_GETMINMAXINFO()
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_SYSCOMMAND()
    ON_WM_SETTINGCHANGE()
    ON_WM_ENTERIDLE()
    ON_WM_GETDLGCODE()
    ON_WM_QUERYENDSESSION()
    ON_COMMAND_EX(20, &Apart::OnMaybe)
    ON_COMMAND_EX(21, &Apart::OnMaybe)
    ON_CONTROL_RANGE(BN_CLICKED, 30, 32, &Apart::OnClicks)
    ON_NOTIFY_RANGE(NM_CLICK, 0, 5, &Apart::OnNotifyOne)
END_MESSAGE_MAP()

TEST(MessageKinds, ReachTheirHandlersWithTheirParts) {
    Apart window;
    ASSERT_TRUE(window.CreateTopLevel());
    const auto other = reinterpret_cast<LPARAM>(window.other);
    DRAWITEMSTRUCT draw = {};
    draw.itemID = 4;
    MEASUREITEMSTRUCT measure = {};
    measure.itemID = 5;
    MINMAXINFO limits = {};
    limits.ptMinTrackSize.x = 6;
    WINDOWPOS place = {};
    place.cx = 7;
    const auto at = [](auto& value) { return reinterpret_cast<LPARAM>(&value); };
    struct Row {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        const char* seen;
        LRESULT result;
    };
    const LPARAM point = MAKELPARAM(11, static_cast<WORD>(-12));
    const Row rows[] = {
        {WM_SHOWWINDOW, TRUE, SW_PARENTOPENING, "show 1 3", 0},
        {WM_ENABLE, TRUE, 0, "enable 1", 0},
        {WM_MOVE, 0, point, "move 11 -12", 0},
        {WM_KEYDOWN, VK_F2, MAKELPARAM(2, 3), "key 113 2 3", 0},
        {WM_CHAR, 'a', MAKELPARAM(4, 5), "char 97 4 5", 0},
        {WM_MOUSEWHEEL, MAKEWPARAM(8, static_cast<WORD>(-120)), point, "wheel 8 -120 11 -12", TRUE},
        {WM_LBUTTONDOWN, 1, point, "down 1 11 -12", 0},
        {WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 6), other, "scroll 4 6 1", 0},
        {WM_ACTIVATE, MAKEWPARAM(2, 1), other, "activate 2 1 1", 0},
        {WM_SETFOCUS, static_cast<WPARAM>(other), 0, "focus 1", 0},
        {WM_CAPTURECHANGED, 0, other, "capture 1", 0},
        {WM_CONTEXTMENU, static_cast<WPARAM>(other), point, "menu 1 11 -12", 0},
        {WM_SETCURSOR, static_cast<WPARAM>(other), MAKELPARAM(1, 2), "cursor 1 1 2", TRUE},
        {WM_NCHITTEST, 0, point, "hit 11 -12", HTCAPTION},
        {WM_CTLCOLORSTATIC, 6, other, "colour 1 1 6", 7},
        {WM_CTLCOLOREDIT, 6, other, "colour 1 1 1", 7},
        {WM_DRAWITEM, 3, at(draw), "draw 3 4", TRUE},
        {WM_MEASUREITEM, 3, at(measure), "measure 3 5", TRUE},
        {WM_GETMINMAXINFO, 0, at(limits), "limits 6", 0},
        {WM_WINDOWPOSCHANGED, 0, at(place), "place 7", 0},
        {WM_SYSCOMMAND, 0x1230, 13, "system 4656 13", 0},
        {WM_SETTINGCHANGE, 14, reinterpret_cast<LPARAM>(L"x"), "setting 14 1", 0},
        {WM_ENTERIDLE, MSGF_MENU, other, "idle 2 1", 0},
        {WM_GETDLGCODE, 0, 0, "code", DLGC_WANTTAB},
        {WM_QUERYENDSESSION, 0, 0, "may end", FALSE},
        {WM_COMMAND, 20, 0, "maybe 20", 0},
        {WM_COMMAND, 21, 0, "maybe 21", 0},
        {WM_COMMAND, MAKEWPARAM(31, BN_CLICKED), other, "clicks 31", 0},
    };
    for (const Row& row : rows) {
        window.seen.clear();
        EXPECT_EQ(window.SendMessage(row.message, row.wParam, row.lParam), row.result) << row.seen;
        EXPECT_EQ(window.seen, row.seen);
    }
    NMHDR header = {window.other, 0, static_cast<UINT>(NM_CLICK)};
    EXPECT_EQ(window.SendMessage(WM_NOTIFY, 0, at(header)), 9);
    EXPECT_EQ(window.seen, "notify 0 1");
}

TEST(MessageKinds, AnExtendedHandlerMaySayThatItDidNothing) {
    Apart window;
    ASSERT_TRUE(window.CreateTopLevel());
    EXPECT_TRUE(window.OnCmdMsg(20, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(window.OnCmdMsg(21, CN_COMMAND, nullptr, nullptr));
}

} // namespace
