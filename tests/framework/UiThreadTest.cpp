// Dialogs on a thread that is not the application's: they belong to nobody there, or to the
// thread's own active window, and leave the main thread's windows alone.
#include "FieldsDialog.h"
#include "kit/kit.h"

#include <atomic>
#include <thread>

namespace {

/// Runs the work on a thread whose windows are on the same desktop; this one's go on getting
/// their messages.
void OnAnotherThread(const std::function<void()>& work) {
    const HDESK desktop = ::GetThreadDesktop(::GetCurrentThreadId());
    std::atomic<bool> done = false;
    const DWORD waiting = ::GetCurrentThreadId();
    std::thread thread([&] {
        EXPECT_TRUE(::SetThreadDesktop(desktop));
        work();
        done = true;
        ::PostThreadMessage(waiting, WM_NULL, 0, 0);
    });
    MSG message;
    while (!done && ::GetMessage(&message, nullptr, 0, 0))
        ::DispatchMessage(&message);
    thread.join();
}

HWND OwnerOf(const CWnd& window) {
    return ::GetWindow(window.m_hWnd, GW_OWNER);
}

/// Opens the dialog, which closes itself as soon as it is open.
INT_PTR Pass(FieldsDialog& dialog) {
    const auto look = dialog.onInit;
    dialog.onInit = [&](FieldsDialog& d) {
        look(d);
        d.PostMessage(WM_COMMAND, IDOK);
    };
    return dialog.DoModal();
}

/// What is true in each of many dialogs, on whichever thread. They have no edits: Wine faults
/// where two threads set the texts of edits at once.
void PassMany(AFX_MODULE_STATE* state, const CWnd* owner) {
    int passed = 0;
    for (int i = 0; i < 200; ++i) {
        FieldsDialog dialog(nullptr, IDD_COMBOS);
        int index = -1;
        const DWORD thread = ::GetCurrentThreadId();
        dialog.exchange = [&](CDataExchange* pDX) { DDX_CBIndex(pDX, IDC_COMBO, index); };
        dialog.onInit = [&](FieldsDialog& d) {
            EXPECT_EQ(AfxGetModuleState(), state);
            EXPECT_EQ(OwnerOf(d), afx_internal::HandleOf(owner));
            EXPECT_EQ(CWnd::FromHandlePermanent(d.m_hWnd), &d);
            const CWnd* const control = d.GetDlgItem(IDC_COMBO);
            EXPECT_EQ(control, d.GetDlgItem(IDC_COMBO));
            EXPECT_EQ(::GetWindowThreadProcessId(control->m_hWnd, nullptr), thread);
            d.SendDlgItemMessage(IDC_COMBO, CB_SETCURSEL, static_cast<WPARAM>(i % 3));
        };
        passed += Pass(dialog) == IDOK && index == i % 3;
    }
    EXPECT_EQ(passed, 200);
}

} // namespace

TEST(UiThreads, ADialogWithoutParentIsOwnedByNobody) {
    MainWindow main;
    OnAnotherThread([&] {
        EXPECT_EQ(AfxGetApp(), &theApp);
        EXPECT_EQ(AfxGetThread(), nullptr);
        EXPECT_EQ(AfxGetMainWnd(), nullptr);
        FieldsDialog dialog;
        dialog.onInit = [&](FieldsDialog& d) {
            EXPECT_EQ(OwnerOf(d), nullptr);
            EXPECT_TRUE(main.IsWindowEnabled());
        };
        EXPECT_EQ(Pass(dialog), IDOK);
    });
    EXPECT_EQ(AfxGetMainWnd(), &main);
    EXPECT_TRUE(main.IsWindowEnabled());
}

TEST(UiThreads, ADialogWithoutParentIsOwnedByTheThreadsActiveWindow) {
    MainWindow main;
    OnAnotherThread([&] {
        CWnd own;
        ASSERT_TRUE(own.CreateEx(0, nullptr, L"Own", WS_POPUP | WS_VISIBLE, 0, 0, 90, 90, nullptr,
                                 nullptr));
        own.SetActiveWindow();
        FieldsDialog dialog;
        dialog.onInit = [&](FieldsDialog& d) {
            EXPECT_EQ(OwnerOf(d), own.m_hWnd);
            EXPECT_FALSE(own.IsWindowEnabled());
            EXPECT_TRUE(main.IsWindowEnabled());
        };
        EXPECT_EQ(Pass(dialog), IDOK);
        EXPECT_TRUE(own.IsWindowEnabled());
        own.DestroyWindow();
    });
}

TEST(UiThreads, WindowsOfManyClassesAreMadeOnTwoOfThemAtOnce) {
    const auto make = [] {
        for (int width = 1; width <= 200; ++width) {
            // A class of its own: its background is a brush that the other thread does not have.
            const HBRUSH background = ::CreateSolidBrush(RGB(1, 2, 3));
            const LPCTSTR name = AfxRegisterWndClass(0, nullptr, background);
            WNDCLASS registered;
            EXPECT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), name, &registered));
            EXPECT_EQ(registered.hbrBackground, background);
            EXPECT_TRUE(::UnregisterClass(name, AfxGetInstanceHandle())); // the brush with it
        }
    };
    std::thread thread(make);
    make();
    thread.join();
}

// Meanwhile on both.
TEST(UiThreads, ManyDialogsOnTwoOfThemAtOnce) {
    MainWindow main;
    const HDESK desktop = ::GetThreadDesktop(::GetCurrentThreadId());
    AFX_MODULE_STATE others(TRUE, &AfxWndProc);
    others.m_hCurrentInstanceHandle = others.m_hCurrentResourceHandle = ::GetModuleHandle(nullptr);
    std::thread thread([&] {
        AFX_MANAGE_STATE(&others);
        EXPECT_TRUE(::SetThreadDesktop(desktop));
        PassMany(&others, nullptr);
    });
    PassMany(AfxGetAppModuleState(), &main);
    thread.join();
    EXPECT_TRUE(main.IsWindowEnabled());
}
