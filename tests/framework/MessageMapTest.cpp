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

} // namespace
