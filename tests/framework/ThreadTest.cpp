// The message loop of an application.
#include "TestApp.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

/// Writes down what it does between messages.
class LoopApp : public CWinApp {
public:
    LoopApp() : CWinApp(L"Loop") {}

    std::vector<std::string> events;

    BOOL OnIdle(LONG count) override {
        events.push_back("idle " + std::to_string(count));
        const BOOL more = CWinApp::OnIdle(count);
        if (!more && m_quitWhenIdle)
            ::PostQuitMessage(7);
        return more;
    }
    int ExitInstance() override {
        events.push_back("exit");
        return CWinApp::ExitInstance();
    }
    void QuitWhenIdle() { m_quitWhenIdle = true; }

private:
    bool m_quitWhenIdle = false;
};

/// Takes the keys that are meant for it before they are dispatched.
class TakingWindow : public CWnd {
public:
    bool takes = false;
    int offered = 0;
    int dispatched = 0;

    BOOL PreTranslateMessage(MSG* message) override {
        if (message->message == WM_APP)
            ++offered;
        return takes && message->message == WM_APP;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_APP)
            ++dispatched;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class MessageLoop : public testing::Test {
protected:
    AFX_MODULE_STATE m_state{FALSE, AfxGetAppModuleState()->m_pfnAfxWndProc};
    AFX_MAINTAIN_STATE m_current{&m_state};
    LoopApp app;

    void SetUp() override {
        ASSERT_EQ(AfxGetThread(), &app);
        ASSERT_TRUE(AfxWinInit(::GetModuleHandle(nullptr), nullptr, nullptr, 0));
    }

    /// Runs the loop until it has nothing else to do; the result is the program's.
    int RunToIdle() {
        app.QuitWhenIdle();
        return static_cast<CWinThread&>(app).CWinThread::Run();
    }
};

} // namespace

TEST_F(MessageLoop, EndsWithTheCodeThatItWasToldToQuitWith) {
    EXPECT_EQ(RunToIdle(), 7);
    EXPECT_EQ(app.events, (std::vector<std::string>{"idle 0", "idle 1", "exit"}));
}

TEST_F(MessageLoop, EndsAtOnceWhereThereIsNoMainWindow) {
    EXPECT_EQ(app.Run(), 0);
    EXPECT_EQ(app.events.back(), "exit");
}

TEST_F(MessageLoop, OffersAMessageToItsWindowAndToThoseAroundIt) {
    TakingWindow top;
    TakingWindow middle;
    TakingWindow inner;
    ASSERT_TRUE(top.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr));
    ASSERT_TRUE(middle.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 50, 50), &top, 1));
    ASSERT_TRUE(inner.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 20, 20), &middle, 1));

    ::PostMessage(inner.m_hWnd, WM_APP, 0, 0);
    RunToIdle();
    EXPECT_EQ(inner.offered, 1);
    EXPECT_EQ(middle.offered, 1);
    EXPECT_EQ(top.offered, 1);
    EXPECT_EQ(inner.dispatched, 1);

    middle.takes = true;
    ::PostMessage(inner.m_hWnd, WM_APP, 0, 0);
    RunToIdle();
    EXPECT_EQ(inner.offered, 2);
    EXPECT_EQ(middle.offered, 2);
    EXPECT_EQ(top.offered, 1) << "it was taken before";
    EXPECT_EQ(inner.dispatched, 1);
    top.DestroyWindow();
}

TEST_F(MessageLoop, OwnerIsNotAskedForAMessageOfAnOwnedWindow) {
    TakingWindow owner;
    TakingWindow owned;
    ASSERT_TRUE(owner.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr));
    ASSERT_TRUE(owned.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 10, 10, owner.m_hWnd, nullptr));
    ::PostMessage(owned.m_hWnd, WM_APP, 0, 0);
    RunToIdle();
    EXPECT_EQ(owned.offered, 1);
    EXPECT_EQ(owner.offered, 0);
    owner.DestroyWindow();
}

TEST_F(MessageLoop, IsIdleOnceAgainAfterWork) {
    TakingWindow window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr));
    ::PostMessage(window.m_hWnd, WM_APP, 0, 0);
    RunToIdle();
    EXPECT_EQ(app.events, (std::vector<std::string>{"idle 0", "idle 1", "exit"}));
    window.DestroyWindow();
}

TEST_F(MessageLoop, PaintingAndTimersBringNoIdleWork) {
    const auto brings = [&](UINT message) {
        MSG msg = {nullptr, message, 0, 0, 0, {}};
        return app.IsIdleMessage(&msg) != FALSE;
    };
    EXPECT_TRUE(brings(WM_KEYDOWN));
    EXPECT_TRUE(brings(WM_COMMAND));
    EXPECT_FALSE(brings(WM_PAINT));
    EXPECT_FALSE(brings(WM_TIMER));
}

TEST_F(MessageLoop, TemporaryObjectsGoWhenItIsIdle) {
    TakingWindow window;
    ASSERT_TRUE(window.CreateEx(0, L"Static", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    const HWND handle = window.Detach();
    ASSERT_NE(CWnd::FromHandle(handle), nullptr);
    EXPECT_FALSE(app.OnIdle(1)) << "nothing more to do";
    EXPECT_TRUE(::IsWindow(handle)) << "their windows live on";
    EXPECT_TRUE(app.OnIdle(0));
    ::DestroyWindow(handle);
}

TEST_F(MessageLoop, ThreadMessageArrives) {
    EXPECT_TRUE(app.PostThreadMessage(WM_APP + 5, 1, 2));
    MSG message;
    ASSERT_TRUE(::PeekMessage(&message, nullptr, WM_APP + 5, WM_APP + 5, PM_REMOVE));
    EXPECT_EQ(message.wParam, 1U);
    EXPECT_EQ(message.lParam, 2);
}
