// Exceptions that a handler lets out: the application's hook is asked, by default the user sees a
// message, and the dialog goes on. Nothing is thrown through the system.
#include "FieldsDialog.h"
#include "kit/kit.h"

#include <exception>
#include <stdexcept>
#include <string>
#include <thread>

namespace {

const wchar_t* const failure = L"Internal application error.";

void ThrowStandard() {
    throw std::runtime_error("of a handler");
}

void ThrowNumber() {
    throw 7;
}

using Throw = void (*)();
constexpr Throw foreign[] = {ThrowStandard, ThrowNumber};

/// The text of the standard exception that is being handled.
std::string Current() {
    try {
        std::rethrow_exception(std::current_exception());
    } catch (const std::exception& e) {
        return e.what();
    } catch (...) {
        return "another one";
    }
}

/// The application's hook, for the length of a scope.
class Hook {
public:
    explicit Hook(std::function<LRESULT(CException*, const MSG*)> hook) {
        theApp.onException = std::move(hook);
    }
    ~Hook() { theApp.onException = nullptr; }
    Hook(const Hook&) = delete;
    Hook& operator=(const Hook&) = delete;
};

class ThrowingWindow : public CWnd {
public:
    UINT message = 0;
    int throws = 0;
    LRESULT WindowProc(UINT sent, WPARAM wParam, LPARAM lParam) override {
        if (sent == message) {
            ++throws;
            ThrowStandard();
        }
        return CWnd::WindowProc(sent, wParam, lParam);
    }
    BOOL Open(DWORD style = WS_POPUP) {
        return CreateEx(0, nullptr, L"", style, 0, 0, 50, 50, nullptr, nullptr);
    }
};

/// Counts its objects.
class Counted : public CException {
public:
    Counted() { ++alive; }
    ~Counted() override { --alive; }
    static inline int alive = 0;
};

} // namespace

// The user presses a button, types, presses OK; each time something fails. He is told so, and
// cancels the dialog in the end.
TEST(HandlerExceptions, OfAnyTypeAreToldAndTheDialogGoesOn) {
    for (const Throw raise : foreign) {
        FieldsDialog dialog;
        dialog.onInner = dialog.onNameChange = dialog.onOk =
            dialog.onPosted = [=](FieldsDialog&) { raise(); };
        kit::Script script;
        script.onDialog([](kit::Dialog& d) {
            d.press(IDC_INNER);
            d.setText(IDC_NAME, L"x");
            d.press(IDOK);
            ::SendMessage(d.handle(), WM_APP, 0, 0);
            d.press(IDCANCEL);
        });
        for (int i = 0; i < 4; ++i)
            script.expectMessage(L"Framework tests", failure, MB_ICONERROR)
                .buttons(MB_OK)
                .ownedByDialog();
        EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
    }
}

// A notification with data, which has an answer.
class NotifiedDialog : public FieldsDialog {
public:
    NotifiedDialog() : FieldsDialog(nullptr, IDD_CHILDREN) {}
    void OnItemChanged(NMHDR*, LRESULT*) { ThrowStandard(); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(NotifiedDialog, FieldsDialog)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_LIST, &NotifiedDialog::OnItemChanged)
END_MESSAGE_MAP()

TEST(HandlerExceptions, OfANotificationAreToldToo) {
    NotifiedDialog dialog;
    dialog.onInit = [](FieldsDialog& d) {
        LVITEM item = {};
        d.SendDlgItemMessage(IDC_LIST, LVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item));
    };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        LVITEM item = {};
        item.stateMask = item.state = LVIS_SELECTED;
        EXPECT_TRUE(::SendMessage(d.control(IDC_LIST), LVM_SETITEMSTATE, 0,
                                  reinterpret_cast<LPARAM>(&item)));
        d.press(IDOK);
    });
    script.expectMessage(L"Framework tests", failure, MB_ICONERROR);
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
}

TEST(HandlerExceptions, OfAMenusCommandAreToldAsSuch) {
    FieldsDialog dialog;
    dialog.onInner = [](FieldsDialog&) { ThrowStandard(); };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        ::SendMessage(d.handle(), WM_COMMAND, IDC_INNER, 0);
        d.press(IDOK);
    });
    script.expectMessage(L"Framework tests", L"Command failed.", MB_ICONERROR);
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
}

TEST(HandlerExceptions, OfTheInitialisationEndTheDialog) {
    for (const Throw raise : foreign) {
        FieldsDialog dialog;
        dialog.onInit = [=](FieldsDialog&) { raise(); };
        for (const bool modal : {true, false}) {
            kit::Script script;
            script.expectMessage(L"Framework tests", failure, MB_ICONERROR);
            if (modal)
                EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), -1);
            else
                EXPECT_FALSE(script.run([&] { return dialog.Create(IDD_FIELDS); }));
            EXPECT_EQ(dialog.m_hWnd, nullptr);
        }
    }
}

TEST(HandlerExceptions, GoToTheApplicationsHookInstead) {
    std::vector<std::string> asked;
    const Hook hook([&](CException* e, const MSG* message) -> LRESULT {
        EXPECT_TRUE(e->IsKindOf(RUNTIME_CLASS(CSimpleException)));
        wchar_t text[10];
        EXPECT_FALSE(e->GetErrorMessage(text, 10)) << "it has no text of its own";
        EXPECT_TRUE(::IsWindow(message->hwnd));
        asked.push_back(std::to_string(message->message) + " " + Current());
        return 12;
    });
    FieldsDialog dialog;
    dialog.onInit = dialog.onPosted = [](FieldsDialog&) { ThrowStandard(); };
    dialog.onInner = [](FieldsDialog&) { ThrowNumber(); };
    EXPECT_EQ(dialog.DoModal(), -1);
    dialog.onInit = [](FieldsDialog&) {};
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        EXPECT_EQ(::SendMessage(d.handle(), WM_APP, 0, 0), 12);
        d.press(IDC_INNER);
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(asked, (std::vector<std::string>{
                         std::to_string(WM_INITDIALOG) + " of a handler",
                         std::to_string(WM_APP) + " of a handler",
                         std::to_string(WM_COMMAND) + " another one",
                     }));
}

TEST(HandlerExceptions, OfTheHookItselfEndThere) {
    for (const Throw raise : {ThrowStandard, ThrowNumber, Throw([] { throw new Counted; })}) {
        const Hook hook([=](CException*, const MSG*) -> LRESULT {
            raise();
            return 1;
        });
        ThrowingWindow window;
        ASSERT_TRUE(window.Open());
        window.message = WM_APP;
        EXPECT_EQ(window.SendMessage(WM_APP), 0);
        EXPECT_EQ(window.throws, 1);
        EXPECT_EQ(Counted::alive, 0);
        window.DestroyWindow();
    }
}

TEST(HandlerExceptions, OfAWindowsMakingMakeItFailSilently) {
    ThrowingWindow window;
    window.message = WM_CREATE;
    EXPECT_FALSE(window.Open());
    EXPECT_EQ(window.throws, 1);
    EXPECT_EQ(window.m_hWnd, nullptr);
}

TEST(HandlerExceptions, OfThePaintingAreToldOnce) {
    ThrowingWindow window;
    ASSERT_TRUE(window.Open(WS_POPUP | WS_VISIBLE));
    window.Invalidate();
    window.message = WM_PAINT;
    kit::Script script;
    script.expectMessage(L"Framework tests", failure, MB_ICONERROR);
    script.run([&] { window.UpdateWindow(); });
    EXPECT_EQ(window.throws, 1);
    EXPECT_FALSE(window.GetUpdateRect(nullptr)) << "it would come again at once";
    window.DestroyWindow();
}

TEST(HandlerExceptions, OfAThreadWithoutAnObjectGoToTheApplicationsHook) {
    int asked = 0;
    const Hook hook([&](CException*, const MSG*) -> LRESULT { return ++asked; });
    std::thread([] {
        ThrowingWindow window;
        ASSERT_TRUE(window.Open());
        window.message = WM_APP;
        EXPECT_EQ(window.SendMessage(WM_APP), 1);
        window.DestroyWindow();
    }).join();
    EXPECT_EQ(asked, 1);
}

TEST(HandlerExceptions, WithoutAnApplicationAreToldAllTheSame) {
    AFX_MODULE_STATE another(TRUE, &AfxWndProc);
    AFX_MANAGE_STATE(&another);
    ASSERT_EQ(AfxGetApp(), nullptr);
    ThrowingWindow window;
    AfxSetResourceHandle(::GetModuleHandle(nullptr));
    another.m_hCurrentInstanceHandle = ::GetModuleHandle(nullptr);
    ASSERT_TRUE(window.Open());
    window.message = WM_APP;
    kit::Script script;
    script.expectMessage(L"Error", failure, MB_ICONERROR);
    EXPECT_EQ(script.run([&] { return window.SendMessage(WM_APP); }), 0);
    window.DestroyWindow();
}
