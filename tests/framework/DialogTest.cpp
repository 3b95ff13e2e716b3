#include "FieldsDialog.h"

#include <kit/kit.h>

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace {

// ---- The run and its result

TEST(Dialog, OkAndCancelEndItWithTheirNumbers) {
    for (const int button : {IDOK, IDCANCEL}) {
        FieldsDialog dialog;
        kit::Script script;
        script.onDialog([=](kit::Dialog& d) {
            EXPECT_EQ(d.caption(), L"Fields");
            d.press(button);
        });
        EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), button);
        EXPECT_EQ(dialog.m_hWnd, nullptr);
    }
}

TEST(Dialog, EnterAndEscapeAreOkAndCancel) {
    for (const auto& [key, result] :
         {std::pair<WORD, int>{VK_RETURN, IDOK}, {VK_ESCAPE, IDCANCEL}}) {
        FieldsDialog dialog;
        kit::Script script;
        script.onDialog([key = key](kit::Dialog&) { kit::keyboard::press(key); });
        EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), result);
    }
}

TEST(Dialog, TheCloseBoxCancels) {
    FieldsDialog dialog;
    kit::Script script;
    script.onDialog([](kit::Dialog& d) { d.close(); });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
}

TEST(Dialog, CanBeRunAgain) {
    FieldsDialog dialog;
    int inits = 0;
    dialog.onInit = [&](FieldsDialog&) { ++inits; };
    for (const int button : {IDCANCEL, IDOK}) {
        kit::Script script;
        script.onDialog([=](kit::Dialog& d) { d.press(button); });
        EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), button);
    }
    EXPECT_EQ(inits, 2);
}

TEST(Dialog, AMissingTemplateIsMinusOne) {
    FieldsDialog dialog(nullptr, 31999);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(Dialog, EndedInItsInitialisationIsNeverShown) {
    FieldsDialog dialog;
    dialog.onInit = [](FieldsDialog& d) { d.EndDialog(123); };
    EXPECT_EQ(dialog.DoModal(), 123);
}

TEST(Dialog, AnExceptionInTheInitialisationIsMinusOneAndTheHostGoesOn) {
    MainWindow main;
    for (const bool foreign : {false, true}) {
        FieldsDialog dialog;
        dialog.onInit = [=](FieldsDialog&) {
            if (foreign)
                throw std::runtime_error("from an initialisation");
            AfxThrowResourceException();
        };
        kit::Script script;
        if (foreign)
            script.expectMessage(L"Framework tests", L"Internal application error.", MB_ICONERROR);
        EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), -1);
        EXPECT_TRUE(main.IsWindowEnabled());
    }
    FieldsDialog next;
    kit::Script script;
    script.onDialog([](kit::Dialog& d) { d.press(IDOK); });
    EXPECT_EQ(script.run([&] { return next.DoModal(); }), IDOK);
}

TEST(Dialog, AnExceptionOfTheFrameworkInAHandlerIsReportedAndItStaysOpen) {
    FieldsDialog dialog;
    dialog.onInner = [](FieldsDialog&) { AfxThrowMemoryException(); };
    CString text;
    ASSERT_TRUE(text.LoadString(AFX_IDS_MEMORY_EXCEPTION));
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.press(IDC_INNER);
        d.press(IDOK);
    });
    script.expectMessage(L"Framework tests", text.GetString(), MB_ICONERROR);
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
}

TEST(Dialog, AUserExceptionInAHandlerIsSilent) {
    FieldsDialog dialog;
    dialog.onInner = [](FieldsDialog&) { AfxThrowUserException(); };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.press(IDC_INNER);
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
}

// A dialog that counts what happens to it as a window.
class CountingDialog : public FieldsDialog {
public:
    using FieldsDialog::FieldsDialog;
    int destroyed = 0;
    int ncDestroyed = 0;
    BOOL DestroyWindow() override {
        ++destroyed;
        return FieldsDialog::DestroyWindow();
    }
    void PostNcDestroy() override { ++ncDestroyed; }
};

TEST(Dialog, ItsWindowIsDestroyedThroughTheVirtualFunction) {
    CountingDialog dialog;
    kit::Script script;
    script.onDialog([](kit::Dialog& d) { d.press(IDCANCEL); });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
    EXPECT_EQ(dialog.destroyed, 1);
    EXPECT_EQ(dialog.ncDestroyed, 1);
}

// ---- Notifications at the end

TEST(Dialog, ItsClosingNotifiesNobody) {
    for (const int button : {IDOK, IDCANCEL}) {
        FieldsDialog dialog;
        kit::Script script;
        script.onDialog([&](kit::Dialog& d) {
            d.focusOn(IDC_NAME);
            d.focusOn(IDC_DOUBLE);
            EXPECT_EQ(dialog.log, (std::vector<std::string>{"killfocus"}));
            d.focusOn(IDC_NAME);
            dialog.log.clear();
            d.command(button); // without taking the focus to the button
        });
        EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), button);
        EXPECT_TRUE(dialog.log.empty()) << "a focus lost by closing is not the user's doing";
    }
}

// ---- Owners

TEST(DialogOwner, IsTheMainWindowWhichIsDisabledMeanwhile) {
    MainWindow main;
    FieldsDialog dialog;
    kit::Script script;
    script.onDialog([&](kit::Dialog& d) {
        EXPECT_EQ(d.owner(), main.m_hWnd);
        EXPECT_FALSE(main.IsWindowEnabled());
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_TRUE(main.IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), main.m_hWnd);
}

TEST(DialogOwner, AMainWindowThatWasDisabledStaysSo) {
    MainWindow main;
    main.EnableWindow(FALSE);
    FieldsDialog dialog(&main);
    kit::Script script;
    script.onDialog([](kit::Dialog& d) { d.press(IDOK); });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_FALSE(main.IsWindowEnabled());
}

// With a main window and without one.
class InnerDialog : public testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(Main, InnerDialog, testing::Bool());

TEST_P(InnerDialog, WithoutParentBelongsToTheActiveDialog) {
    std::optional<MainWindow> main;
    if (GetParam())
        main.emplace();
    FieldsDialog outer;
    INT_PTR innerResult = 0;
    outer.onInner = [&](FieldsDialog&) {
        FieldsDialog inner(nullptr, IDD_INNER);
        innerResult = inner.DoModal();
    };
    kit::Script script;
    script.onDialog(kit::titled(L"Fields"), [&](kit::Dialog& d) {
        d.focusOn(IDC_DOUBLE);
        d.command(IDC_INNER); // the focus stays where the user was
        EXPECT_EQ(innerResult, IDOK);
        EXPECT_TRUE(::IsWindowEnabled(outer.m_hWnd));
        EXPECT_EQ(::GetActiveWindow(), outer.m_hWnd);
        EXPECT_EQ(d.focus(), IDC_DOUBLE);
        d.press(IDCANCEL);
    });
    script.onDialog(kit::titled(L"Inner"), [&](kit::Dialog& d) {
        EXPECT_EQ(d.owner(), outer.m_hWnd);
        EXPECT_FALSE(::IsWindowEnabled(outer.m_hWnd));
        EXPECT_FALSE(main && main->IsWindowEnabled());
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return outer.DoModal(); }), IDCANCEL);
    EXPECT_TRUE(!main || main->IsWindowEnabled());
}

TEST(DialogOwner, AChildNamedAsParentStandsForItsTopLevelWindow) {
    MainWindow main;
    CWnd child;
    ASSERT_TRUE(child.Create(L"Static", L"child", WS_VISIBLE, CRect(0, 0, 50, 20), &main, 7));
    FieldsDialog dialog(&child);
    kit::Script script;
    script.onDialog([&](kit::Dialog& d) {
        EXPECT_EQ(d.owner(), main.m_hWnd);
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
}

TEST(DialogOwner, MessageBoxesBelongToTheDialog) {
    FieldsDialog dialog;
    dialog.onInner = [](FieldsDialog& d) { d.MessageBox(L"text", L"caption", MB_ICONERROR); };
    dialog.onCheck = [](FieldsDialog&) { AfxMessageBox(L"from the framework"); };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.press(IDC_INNER);
        d.click(IDC_CHECK);
        d.press(IDOK);
    });
    script.expectMessage(L"caption", L"text", MB_ICONERROR).ownedByDialog();
    script.expectMessage(L"Framework tests", L"from the framework", MB_ICONEXCLAMATION)
        .ownedByDialog();
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
}

TEST(DialogOwner, AMessageBoxWithoutCaptionSaysError) {
    FieldsDialog dialog;
    dialog.onInner = [](FieldsDialog& d) {
        EXPECT_EQ(d.MessageBox(L"Really?", nullptr, MB_YESNO | MB_ICONQUESTION), IDNO);
    };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.press(IDC_INNER);
        d.press(IDOK);
    });
    script.expectMessage(L"Error", L"Really?", MB_ICONQUESTION).buttons(MB_YESNO).answer(IDNO);
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
}

// ---- Place

TEST(DialogPlace, CentresOverItsOwner) {
    MainWindow main;
    FieldsDialog dialog;
    dialog.onInit = [](FieldsDialog& d) { d.CenterWindow(); };
    kit::Script script;
    script.onDialog([&](kit::Dialog& d) {
        CRect owner;
        main.GetWindowRect(&owner);
        const CRect own = d.rect();
        EXPECT_NEAR(own.CenterPoint().x, owner.CenterPoint().x, 1);
        EXPECT_NEAR(own.CenterPoint().y, owner.CenterPoint().y, 1);
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
}

TEST(DialogPlace, CentresOnTheScreenWithoutAnOwner) {
    FieldsDialog dialog;
    dialog.onInit = [](FieldsDialog& d) { d.CenterWindow(); };
    kit::Script script;
    script.onDialog([&](kit::Dialog& d) {
        CRect area;
        ::SystemParametersInfo(SPI_GETWORKAREA, 0, &area, 0);
        const CRect own = d.rect();
        EXPECT_NEAR(own.CenterPoint().x, area.CenterPoint().x, 1);
        EXPECT_NEAR(own.CenterPoint().y, area.CenterPoint().y, 1);
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
}

TEST(DialogPlace, StaysOnTheScreen) {
    MainWindow main;
    main.MoveWindow(-500, -300, 600, 400);
    FieldsDialog dialog;
    dialog.onInit = [](FieldsDialog& d) { d.CenterWindow(); };
    kit::Script script;
    script.onDialog([&](kit::Dialog& d) {
        EXPECT_GE(d.rect().left, 0);
        EXPECT_GE(d.rect().top, 0);
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
}

// ---- The template's init block

TEST(DialogInitBlock, FillsCombosAndLists) {
    FieldsDialog dialog(nullptr, IDD_COMBOS);
    int countAtInit = 0;
    dialog.onInit = [&](FieldsDialog& d) {
        countAtInit = static_cast<int>(d.SendDlgItemMessage(IDC_COMBO, CB_GETCOUNT));
    };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.choose(IDC_COMBO, 0);
        EXPECT_EQ(d.text(IDC_COMBO), L"First");
        d.choose(IDC_COMBO, 2);
        EXPECT_EQ(d.text(IDC_COMBO), L"Third");
        EXPECT_EQ(::SendMessage(d.control(IDC_LISTBOX), LB_GETCOUNT, 0, 0), 2);
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(countAtInit, 3);
}

// ---- Help

TEST(DialogHelp, TheDefaultNamesTheTemplate) {
    theApp.helps.clear();
    FieldsDialog dialog;
    dialog.onInner = [](FieldsDialog& d) { d.OnHelp(); };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.press(IDC_INNER);
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(theApp.helps, (std::vector<TestApp::Help>{{131072 + IDD_FIELDS, 15}}));
}

// Maps F1 and the Help button as a dialog with help of its own does.
class HelpfulDialog : public FieldsDialog {
public:
    using FieldsDialog::FieldsDialog;
    std::vector<int> controls;
    BOOL OnHelpInfo(HELPINFO* info) {
        controls.push_back(info->iCtrlId);
        return TRUE;
    }
    void OnHelp() { controls.push_back(-1); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(HelpfulDialog, FieldsDialog)
    ON_WM_HELPINFO()
    ON_COMMAND(ID_HELP, &HelpfulDialog::OnHelp)
END_MESSAGE_MAP()

TEST(DialogHelp, F1ClimbsFromTheControlToTheDialog) {
    HelpfulDialog dialog;
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.focusOn(IDC_INT);
        kit::keyboard::press(VK_F1);
        d.press(ID_HELP);
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(dialog.controls, (std::vector<int>{IDC_INT, -1}));
}

TEST(DialogHelp, F1InADialogWithoutHelpEndsThere) {
    theApp.helps.clear();
    HelpfulDialog outer;
    outer.onInner = [](FieldsDialog&) {
        FieldsDialog inner(nullptr, IDD_INNER);
        EXPECT_EQ(inner.DoModal(), IDOK);
    };
    kit::Script script;
    script.onDialog(kit::titled(L"Fields"), [](kit::Dialog& d) {
        d.press(IDC_INNER);
        d.press(IDOK);
    });
    script.onDialog(kit::titled(L"Inner"), [](kit::Dialog& d) {
        d.focusOn(IDC_NAME);
        kit::keyboard::press(VK_F1);
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return outer.DoModal(); }), IDOK);
    EXPECT_TRUE(outer.controls.empty()) << "the owner's help is about something else";
    EXPECT_TRUE(theApp.helps.empty());
}

// ---- Commands

TEST(DialogCommands, FromTheApplicationsRangeOnReachTheApplication) {
    const int before = theApp.commandsSeen;
    FieldsDialog dialog;
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.press(IDC_APP_COMMAND);
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(theApp.commandsSeen, before + 1);
}

TEST(DialogCommands, OkCountsAlsoWhenItsButtonIsDisabled) {
    FieldsDialog dialog;
    dialog.onInit = [](FieldsDialog& d) { d.GetDlgItem(IDOK)->EnableWindow(FALSE); };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        EXPECT_FALSE(d.enabled(IDOK));
        d.command(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
}

// ---- Keyboard

TEST(DialogKeyboard, TabAndMnemonicsMoveTheFocus) {
    FieldsDialog dialog;
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        EXPECT_EQ(d.focus(), IDC_NAME) << "the first control that takes the focus";
        kit::keyboard::press(VK_TAB);
        EXPECT_EQ(d.focus(), IDC_DOUBLE);
        kit::keyboard::press(VK_TAB, kit::Held::Shift);
        EXPECT_EQ(d.focus(), IDC_NAME);
        kit::keyboard::mnemonic(L'U');
        EXPECT_EQ(d.focus(), IDC_UINT);
        kit::keyboard::mnemonic(L'C');
        EXPECT_TRUE(d.checked(IDC_CHECK));
        kit::keyboard::press(VK_SPACE);
        EXPECT_FALSE(d.checked(IDC_CHECK));
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(dialog.log, (std::vector<std::string>{"killfocus", "killfocus", "check", "check"}));
}

// ---- Resources in use

TEST(DialogResources, NothingIsLeftAfterManyRuns) {
    const auto cycle = [] {
        FieldsDialog dialog;
        CString name = L"x";
        dialog.exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_NAME, name); };
        dialog.onInit = [](FieldsDialog& d) {
            d.CenterWindow();
            d.GetDlgItem(IDC_INT)->EnableWindow(FALSE);
        };
        kit::Script script;
        script.onDialog([](kit::Dialog& d) { d.press(IDOK); });
        EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    };
    cycle();
    const kit::Handles before = kit::Handles::now();
    for (int i = 0; i < 20; ++i)
        cycle();
    EXPECT_EQ(kit::Handles::now(), before);
}

// ---- Odd ends

TEST(DialogEnds, AWindowDestroyedUnderItsLoopEndsIt) {
    FieldsDialog dialog;
    dialog.onInner = [](FieldsDialog& d) { d.DestroyWindow(); };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) { d.pressLater(IDC_INNER); });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), -1);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(DialogEnds, AResultThatIsSetSurvivesTheWindow) {
    FieldsDialog dialog;
    dialog.onInner = [](FieldsDialog& d) {
        d.EndDialog(77);
        d.DestroyWindow();
    };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) { d.pressLater(IDC_INNER); });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), 77);
}

TEST(DialogEnds, AQuittingApplicationEndsItAndLearnsOfItToo) {
    MainWindow main;
    FieldsDialog dialog;
    dialog.onInner = [](FieldsDialog&) { ::PostQuitMessage(5); };
    kit::Script script;
    script.onDialog([&](kit::Dialog& d) {
        d.focusOn(IDC_NAME);
        d.command(IDC_INNER);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), -1);
    EXPECT_EQ(dialog.log, (std::vector<std::string>{"inner"})) << "its closing notifies nobody";
    EXPECT_TRUE(main.IsWindowEnabled());
    MSG message;
    ASSERT_TRUE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 5u);
}

TEST(DialogEnds, AModelessDialogWhoseInitialisationFailsIsNotMade) {
    FieldsDialog dialog;
    dialog.onInit = [](FieldsDialog&) { AfxThrowResourceException(); };
    EXPECT_FALSE(dialog.Create(IDD_FIELDS));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(DialogEnds, AWindowDestroyedInItsInitialisationIsMinusOneOrNotMade) {
    MainWindow main;
    FieldsDialog modal;
    modal.onInit = [](FieldsDialog& d) { d.DestroyWindow(); };
    EXPECT_EQ(modal.DoModal(), -1);
    EXPECT_EQ(modal.m_hWnd, nullptr);
    EXPECT_TRUE(main.IsWindowEnabled());

    FieldsDialog modeless;
    modeless.onInit = modal.onInit;
    EXPECT_FALSE(modeless.Create(IDD_FIELDS));

    int alive = 0;
    auto* const passing = new PassingDialog(alive);
    passing->onInit = [](FieldsDialog& d) { ::DestroyWindow(d.m_hWnd); };
    EXPECT_FALSE(passing->Create(IDD_FIELDS));
    EXPECT_EQ(alive, 0);
}

TEST(DialogEnds, AWindowDestroyedInItsInitialisationThatThenFails) {
    int alive = 0;
    for (const bool foreign : {false, true}) {
        auto* const passing = new PassingDialog(alive);
        passing->onInit = [foreign](FieldsDialog& d) {
            const bool asStandard = foreign; // the function goes with the object
            ::DestroyWindow(d.m_hWnd);
            if (asStandard)
                throw std::runtime_error("from an initialisation");
            AfxThrowResourceException();
        };
        kit::Script script;
        if (foreign)
            script.expectMessage(L"Framework tests", L"Internal application error.", MB_ICONERROR);
        EXPECT_FALSE(script.run([&] { return passing->Create(IDD_FIELDS); }));
        EXPECT_EQ(alive, 0);
    }
}

TEST(DialogEnds, ATemplateThatFailsAfterAModelessRunTouchesNothingOfIt) {
    FieldsDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_FIELDS));
    dialog.DestroyWindow();
    kit::Script script;
    script.onDialog([](kit::Dialog& d) { d.press(IDOK); });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
}

// What a derived class does after its base initialisation has failed, whatever it answers.
TEST(DialogEnds, AnInitialisationThatGoesOnAfterAFailureEndsWithWhatItSaysLast) {
    for (const bool destroys : {false, true}) {
        FieldsDialog dialog(nullptr, IDD_INIT_REFUSED);
        CWnd control;
        dialog.onInit = [&](FieldsDialog& d) {
            EXPECT_FALSE(control.SubclassDlgItem(IDC_NO_SUCH, &d));
            d.SetDlgItemText(IDC_NO_SUCH, L"x");
            d.CheckRadioButton(IDC_RADIO_A, IDC_RADIO_C, IDC_RADIO_B);
            d.CenterWindow();
            EXPECT_TRUE(d.UpdateData(FALSE));
            d.EndDialog(5); // it has ended already, but this is what it says last
            if (destroys)
                d.DestroyWindow();
        };
        EXPECT_EQ(dialog.DoModal(), 5);
        EXPECT_EQ(dialog.m_hWnd, nullptr);
    }
}

TEST(DialogEnds, AModelessRunAfterAModalOneNotifiesAgain) {
    FieldsDialog dialog;
    kit::Script script;
    script.onDialog([](kit::Dialog& d) { d.press(IDOK); });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    ASSERT_TRUE(dialog.Create(IDD_FIELDS));
    dialog.log.clear();
    dialog.SetDlgItemText(IDC_NAME, L"x");
    EXPECT_EQ(dialog.log, (std::vector<std::string>{"change"}));
    dialog.DestroyWindow();
}

// ---- The loop

TEST(ModalLoop, OfAPlainWindowGivesEachRunItsOwnResult) {
    MainWindow main;
    for (const int result : {3, 4}) {
        struct Ending : CWnd {
            int result = 0;
            LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
                if (message == WM_USER)
                    EndModalLoop(result);
                return CWnd::WindowProc(message, wParam, lParam);
            }
        };
        static Ending window;
        if (!window.m_hWnd) {
            ASSERT_TRUE(
                window.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 10, 10, main.m_hWnd, nullptr));
        }
        window.result = result;
        window.PostMessage(WM_USER);
        EXPECT_EQ(window.RunModalLoop(), result);
        if (result == 4)
            window.DestroyWindow();
    }
}

class Idle : public MainWindow {
public:
    int idles = 0;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        idles += message == WM_ENTERIDLE;
        return MainWindow::WindowProc(message, wParam, lParam);
    }
};

// Ends when it hears, after its owner, that its loop has nothing to do.
class EndingWhenIdle : public FieldsDialog {
public:
    using FieldsDialog::FieldsDialog;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_KICKIDLE)
            EndDialog(IDOK);
        return FieldsDialog::WindowProc(message, wParam, lParam);
    }
};

TEST(ModalLoop, TellsTheOwnerWhenItIsIdleUnlessTheTemplateSaysNo) {
    for (const auto& [dialogTemplate, told] : {std::pair{IDD_FIELDS, 1}, {IDD_NO_IDLE, 0}}) {
        Idle main;
        EndingWhenIdle dialog(nullptr, static_cast<UINT>(dialogTemplate));
        EXPECT_EQ(dialog.DoModal(), IDOK);
        EXPECT_EQ(main.idles, told);
    }
}

// Takes Escape for itself.
class KeyEater : public FieldsDialog {
public:
    int keys = 0;
    BOOL PreTranslateMessage(MSG* message) override {
        keys += message->message == WM_KEYDOWN;
        if (message->message == WM_KEYDOWN && message->wParam == VK_ESCAPE)
            return TRUE;
        return FieldsDialog::PreTranslateMessage(message);
    }
};

TEST(ModalLoop, OffersEachMessageToTheDialogFirst) {
    KeyEater dialog;
    kit::Script script;
    script.onDialog([&](kit::Dialog& d) {
        ::PostMessage(d.control(IDC_NAME), WM_KEYDOWN, VK_ESCAPE, 0);
        ::PostMessage(d.control(IDC_NAME), WM_KEYDOWN, VK_TAB, 0);
    });
    script.onDialog([&](kit::Dialog& d) {
        EXPECT_EQ(dialog.keys, 2);
        EXPECT_EQ(d.focus(), IDC_DOUBLE);
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
}

// ---- Default processing

class Closing : public FieldsDialog {
public:
    using FieldsDialog::FieldsDialog;
    std::vector<UINT> defaults;
    void OnClose() {
        FieldsDialog inner(nullptr, IDD_INNER);
        EXPECT_EQ(inner.DoModal(), IDOK);
        FieldsDialog::OnClose(); // with the message that this handler was called for
    }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        defaults.push_back(message);
        return FieldsDialog::DefWindowProc(message, wParam, lParam);
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Closing, FieldsDialog)
    ON_WM_CLOSE()
END_MESSAGE_MAP()

TEST(DialogDefault, IsOfTheMessageAlsoAfterAnInnerDialog) {
    Closing dialog;
    kit::Script script;
    script.onDialog(kit::titled(L"Fields"), [](kit::Dialog& d) { d.close(); });
    script.onDialog(kit::titled(L"Inner"), [&](kit::Dialog& d) {
        d.press(IDOK);
        dialog.defaults.clear();
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
    EXPECT_NE(std::ranges::find(dialog.defaults, UINT{WM_CLOSE}), dialog.defaults.end());
}

// ---- Owners, asked directly

TEST(SafeOwner, IsTheTopLevelWindowOfTheNamedOne) {
    MainWindow main;
    CWnd child;
    ASSERT_TRUE(child.Create(L"Static", L"", WS_VISIBLE, CRect(0, 0, 50, 20), &main, 7));
    HWND top = main.m_hWnd;
    EXPECT_EQ(CWnd::GetSafeOwner(&child, &top), &main);
    EXPECT_EQ(top, nullptr) << "nothing but the owner is to be disabled";
}

TEST(SafeOwner, BehindAPopupTheMainWindowIsToBeDisabledToo) {
    MainWindow main;
    CWnd popup;
    ASSERT_TRUE(popup.CreateEx(0, nullptr, L"Popup", WS_POPUP | WS_VISIBLE, 0, 0, 90, 90,
                               main.m_hWnd, nullptr));
    for (CWnd* named : {&popup, static_cast<CWnd*>(nullptr)}) {
        popup.SetActiveWindow();
        HWND top = nullptr;
        EXPECT_EQ(CWnd::GetSafeOwner(named, &top), &popup);
        EXPECT_EQ(top, main.m_hWnd);
    }
}

// ---- Help, asked of the windows one after the other

class HelpAsked : public CWnd {
public:
    LRESULT answer = FALSE;
    int asked = 0;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_COMMANDHELP) {
            ++asked;
            return answer;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

TEST(DialogHelp, TheControlWithTheFocusIsAskedFirst) {
    for (const bool answers : {false, true}) {
        theApp.helps.clear();
        FieldsDialog dialog;
        HelpAsked edit;
        edit.answer = answers;
        dialog.onInit = [&](FieldsDialog& d) { edit.SubclassDlgItem(IDC_NAME, &d); };
        dialog.onInner = [](FieldsDialog& d) { d.OnHelp(); };
        kit::Script script;
        script.onDialog([](kit::Dialog& d) {
            d.focusOn(IDC_NAME);
            d.command(IDC_INNER);
            d.press(IDOK);
        });
        EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
        EXPECT_EQ(edit.asked, 1);
        EXPECT_EQ(theApp.helps.empty(), answers);
    }
}

TEST(DialogHelp, ItsContextCanBeChosenOrNamedOrLeftOut) {
    FieldsDialog dialog;
    dialog.onInner = [](FieldsDialog& d) {
        theApp.helps.clear();
        EXPECT_EQ(d.SendMessage(WM_HELPHITTEST), 0x20000 + IDD_FIELDS);
        EXPECT_TRUE(d.SendMessage(WM_COMMANDHELP, 0, 1234));
        d.SetHelpID(55);
        EXPECT_TRUE(d.SendMessage(WM_COMMANDHELP));
        d.SetHelpID(0);
        EXPECT_FALSE(d.SendMessage(WM_COMMANDHELP));
    };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.press(IDC_INNER);
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(theApp.helps, (std::vector<TestApp::Help>{{1234, 15}, {0x20000 + 55, 15}}));
}

// ---- The template's init block, when it does not fit

TEST(DialogInitBlock, AnEntryThatIsRefusedEndsTheDialogAndOneForNoControlDoesNot) {
    FieldsDialog refused(nullptr, IDD_INIT_REFUSED);
    EXPECT_EQ(refused.DoModal(), -1);
    FieldsDialog forNobody(nullptr, IDD_INIT_FOR_NOBODY);
    kit::Script script;
    script.onDialog([](kit::Dialog& d) { d.press(IDOK); });
    EXPECT_EQ(script.run([&] { return forNobody.DoModal(); }), IDOK);
}

} // namespace
