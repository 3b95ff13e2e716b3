#include "TestApp.h"
#include "TestResource.h"

#include <kit/kit.h>

#include <algorithm>

namespace {

class Recorder : public CWnd {
public:
    std::vector<UINT> messages;
    bool destroyed = false;
    BOOL CreateTopLevel() {
        return CreateEx(0, nullptr, L"Recorder", WS_OVERLAPPEDWINDOW, 10, 10, 200, 100, nullptr,
                        nullptr);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        messages.push_back(message);
        return CWnd::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override { destroyed = true; }
};

TEST(WndHandles, AnObjectIsAttachedBeforeItsFirstMessageAndDetachedAfterItsLast) {
    Recorder window;
    ASSERT_TRUE(window.CreateTopLevel());
    const HWND handle = window.m_hWnd;
    ASSERT_FALSE(window.messages.empty());
    EXPECT_TRUE(std::ranges::find(window.messages, WM_NCCREATE) != window.messages.end());
    EXPECT_TRUE(std::ranges::find(window.messages, WM_CREATE) != window.messages.end());
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), &window);
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(window.messages.back(), static_cast<UINT>(WM_NCDESTROY));
    EXPECT_TRUE(window.destroyed);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
}

TEST(WndHandles, AnObjectThatGoesTakesItsWindowWithIt) {
    HWND handle;
    {
        Recorder window;
        ASSERT_TRUE(window.CreateTopLevel());
        handle = window.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(handle));
}

TEST(WndHandles, ATemporaryObjectDoesNotOwnItsWindow) {
    Recorder window;
    ASSERT_TRUE(window.CreateTopLevel());
    const HWND child = ::CreateWindow(L"Static", L"", WS_CHILD, 0, 0, 10, 10, window.m_hWnd,
                                      reinterpret_cast<HMENU>(7), nullptr, nullptr);
    CWnd* temporary = window.GetDlgItem(7);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(temporary->m_hWnd, child);
    EXPECT_EQ(window.GetDlgItem(7), temporary) << "one object a window";
    EXPECT_EQ(CWnd::FromHandlePermanent(child), nullptr);
    CWnd::DeleteTempMap();
    EXPECT_TRUE(::IsWindow(child));
    EXPECT_EQ(window.GetDlgItem(8), nullptr);
}

TEST(WndHandles, ANullObjectHasNoWindow) {
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    CWnd window;
    EXPECT_EQ(window.GetSafeHwnd(), nullptr);
    EXPECT_FALSE(window.DestroyWindow());
}

TEST(WndHandles, TheFrameworksWindowsSaySo) {
    Recorder window;
    ASSERT_TRUE(window.CreateTopLevel());
    EXPECT_EQ(window.SendMessage(WM_QUERYAFXWNDPROC), 1);
}

TEST(WndSubclassing, PutsTheObjectInFrontAndTakesItAwayAgain) {
    Recorder window;
    ASSERT_TRUE(window.CreateTopLevel());
    const HWND edit = ::CreateWindow(L"Edit", L"text", WS_CHILD, 0, 0, 90, 20, window.m_hWnd,
                                     reinterpret_cast<HMENU>(7), nullptr, nullptr);
    const auto before = ::GetWindowLongPtr(edit, GWLP_WNDPROC);
    Recorder object;
    ASSERT_TRUE(object.SubclassDlgItem(7, &window));
    EXPECT_FALSE(object.SubclassWindow(edit)) << "one object a window, one window an object";
    CString text;
    object.GetWindowText(text);
    EXPECT_STREQ(text, L"text") << "the control still does its own work";
    EXPECT_FALSE(object.messages.empty());
    EXPECT_EQ(object.UnsubclassWindow(), edit);
    EXPECT_EQ(::GetWindowLongPtr(edit, GWLP_WNDPROC), before);
    EXPECT_EQ(object.m_hWnd, nullptr);
}

TEST(WndPlace, SetWindowPosKnowsTheSpecialPlaces) {
    Recorder window;
    ASSERT_TRUE(window.CreateTopLevel());
    const UINT keep = SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE;
    ASSERT_TRUE(window.SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, keep));
    EXPECT_TRUE(window.GetExStyle() & WS_EX_TOPMOST);
    ASSERT_TRUE(window.SetWindowPos(&CWnd::wndNoTopMost, 0, 0, 0, 0, keep));
    EXPECT_FALSE(window.GetExStyle() & WS_EX_TOPMOST);
    ASSERT_TRUE(window.SetWindowPos(&CWnd::wndNoTopMost, 0, 0, 150, 80, SWP_NOMOVE));
    CRect rect;
    window.GetWindowRect(&rect);
    EXPECT_EQ(rect.Size(), CSize(150, 80));
}

TEST(WndPlace, RectanglesConvertBetweenScreenAndClient) {
    Recorder window;
    ASSERT_TRUE(window.CreateTopLevel());
    CRect rect(1, 2, 30, 40);
    window.ClientToScreen(&rect);
    CPoint corner(1, 2);
    window.ClientToScreen(&corner);
    EXPECT_EQ(rect.TopLeft(), corner);
    EXPECT_EQ(rect.Size(), CSize(29, 38));
    window.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(1, 2, 30, 40));
}

TEST(WndText, LongAndOddTextsComeBackWhole) {
    Recorder window;
    ASSERT_TRUE(window.CreateTopLevel());
    const CString longText(L'x', 5000);
    for (const CString& text : {CString(), CString(L"a\tb  \x00e1\x4e2d\xd83d\xde00"), longText}) {
        window.SetWindowText(text);
        CString read = L"old";
        window.GetWindowText(read);
        EXPECT_EQ(read, text);
    }
}

TEST(WndStyles, ModifyTellsWhetherAnythingChanged) {
    Recorder window;
    ASSERT_TRUE(window.CreateTopLevel());
    EXPECT_TRUE(window.ModifyStyle(WS_MAXIMIZEBOX, WS_HSCROLL));
    EXPECT_TRUE(window.GetStyle() & WS_HSCROLL);
    EXPECT_FALSE(window.GetStyle() & WS_MAXIMIZEBOX);
    EXPECT_FALSE(window.ModifyStyle(WS_MAXIMIZEBOX, WS_HSCROLL));
}

TEST(WndIcons, TheSmallAndTheBigIconAreApart) {
    Recorder window;
    ASSERT_TRUE(window.CreateTopLevel());
    const HICON icon = ::LoadIcon(nullptr, IDI_WARNING);
    EXPECT_EQ(window.SetIcon(icon, FALSE), nullptr);
    EXPECT_EQ(window.GetIcon(FALSE), icon);
    EXPECT_EQ(window.GetIcon(TRUE), nullptr);
}

TEST(WndClasses, TheSameArgumentsGiveTheSameClass) {
    const HCURSOR arrow = ::LoadCursor(nullptr, IDC_ARROW);
    const LPCTSTR first = AfxRegisterWndClass(CS_DBLCLKS, arrow);
    EXPECT_EQ(AfxRegisterWndClass(CS_DBLCLKS, arrow), first);
    EXPECT_NE(AfxRegisterWndClass(CS_HREDRAW, arrow), first);
    const CString name = AfxRegisterWndClass(CS_DBLCLKS); // a text, not an atom
    WNDCLASS registered = {};
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), name, &registered));
    EXPECT_EQ(registered.hCursor, arrow);
}

} // namespace
