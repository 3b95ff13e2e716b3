// A person works through conversations of dialogs and message boxes; the script says what
// happens and notices what should not.
#include "kit/FailuresOf.h"
#include "kit/RawDialog.h"
#include "kit/kit.h"

using kit::Dialog;
using kit::Script;

namespace {

constexpr int nameEdit = 101;
constexpr int openButton = 102;
constexpr int deadButton = 103;

/// Asks for a name and does not take an empty one.
RawDialog nameDialog() {
    return RawDialog(L"Name")
        .label(L"&Name:")
        .edit(nameEdit)
        .button(openButton, L"&More...")
        .button(deadButton, L"&Never", WS_DISABLED)
        .button(IDOK, L"OK", BS_DEFPUSHBUTTON)
        .button(IDCANCEL, L"Cancel")
        .onMessage([](HWND dialog, UINT message, WPARAM wParam, LPARAM) {
            if (message != WM_COMMAND || LOWORD(wParam) != IDOK ||
                GetWindowTextLengthW(GetDlgItem(dialog, nameEdit)) > 0)
                return false;
            MessageBoxW(dialog, L"A name is needed.", L"Names", MB_ICONERROR);
            return true;
        });
}

/// Each press of the button opens a second dialog, whose result comes back as the name.
RawDialog nestingDialog(const RawDialog& inner) {
    RawDialog dialog = nameDialog();
    dialog.onCommand([&inner](HWND window, int id, int) {
        if (id == openButton)
            SetDlgItemInt(window, nameEdit, static_cast<UINT>(inner.open(window)), FALSE);
    });
    return dialog;
}

} // namespace

TEST(Script, RunsItsStepsInOrderAndReturnsWhatTheConversationReturns) {
    const RawDialog dialog = nameDialog();
    std::string order;
    Script script;
    script.onDialog([&](Dialog& d) {
        order += "a";
        EXPECT_EQ(d.caption(), L"Name");
        d.press(IDOK);
    });
    script.expectMessage(L"Names", L"A name is needed.", MB_ICONERROR).answer(IDOK);
    script.onDialog([&](Dialog& d) {
        order += "b";
        d.type(nameEdit, L"Norte");
        EXPECT_EQ(d.text(nameEdit), L"Norte");
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.open(); }), IDOK);
    EXPECT_EQ(order, "ab");
}

TEST(Script, RunsTheStepsOfANestedDialogDuringThePressThatOpensIt) {
    const RawDialog inner = RawDialog(L"More").button(IDOK, L"OK").button(IDCANCEL, L"Cancel");
    const RawDialog dialog = nestingDialog(inner);
    std::string order;
    Script script;
    script.onDialog([&](Dialog& d) {
        order += "(";
        d.press(openButton);
        order += ")";
        EXPECT_EQ(d.text(nameEdit), L"2");
    });
    script.onDialog([&](Dialog& d) {
        order += "inner";
        EXPECT_EQ(d.caption(), L"More");
        d.press(IDCANCEL);
    });
    script.onDialog([&](Dialog& d) {
        order += "after";
        EXPECT_EQ(d.caption(), L"Name");
        d.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialog.open(); }), IDCANCEL);
    EXPECT_EQ(order, "(inner)after");
}

TEST(Script, RunsTheStepsOfANestedDialogAfterAPostedPress) {
    const RawDialog inner = RawDialog(L"More").button(IDOK, L"OK").button(IDCANCEL, L"Cancel");
    const RawDialog dialog = nestingDialog(inner);
    std::string order;
    Script script;
    script.onDialog([&](Dialog& d) {
        d.pressLater(openButton);
        order += "first ";
    });
    script.onDialog(kit::titled(L"More"), [&](Dialog& d) {
        order += "inner ";
        d.press(IDOK);
    });
    script.onDialog(kit::having(nameEdit), [&](Dialog& d) {
        order += "after";
        EXPECT_EQ(d.text(nameEdit), L"1");
        d.press(IDCANCEL);
    });
    script.run([&] { return dialog.open(); });
    EXPECT_EQ(order, "first inner after");
}

TEST(Script, MeetsAMessageBoxBeforeAnyDialog) {
    Script script;
    script.expectMessage(L"C", L"T", MB_ICONQUESTION).buttons(MB_YESNO).answer(IDNO);
    EXPECT_EQ(
        script.run([] { return MessageBoxW(nullptr, L"T", L"C", MB_YESNO | MB_ICONQUESTION); }),
        IDNO);
}

TEST(Script, EndsAConversationWithoutWindowsAtOnce) {
    Script script;
    EXPECT_EQ(script.run([] { return 7; }), 7);
}

TEST(Script, CanBeRunAgainWithNewSteps) {
    const RawDialog dialog = nameDialog();
    Script script;
    for (const int button : {IDCANCEL, IDCANCEL}) {
        script.onDialog([&](Dialog& d) { d.press(button); });
        EXPECT_EQ(script.run([&] { return dialog.open(); }), button);
    }
}

TEST(Script, CanRunInsideAStepOfAnotherOne) {
    const RawDialog dialog = nameDialog();
    Script outer;
    outer.onDialog([&](Dialog& d) {
        Script inner;
        inner.expectMessage(L"C", L"inside", 0);
        EXPECT_EQ(inner.run([&] { return MessageBoxW(d.handle(), L"inside", L"C", MB_OK); }), IDOK);
        d.press(IDCANCEL);
    });
    EXPECT_EQ(outer.run([&] { return dialog.open(); }), IDCANCEL);
}

TEST(Script, FailsOnAnUnexpectedMessageBoxAndEndsTheConversation) {
    const RawDialog dialog = nameDialog();
    INT_PTR result = 0;
    const auto failures = failuresOf([&] {
        Script script;
        script.onDialog([](Dialog& d) { d.press(IDOK); });
        script.onDialog([](Dialog&) { ADD_FAILURE() << "no step may follow"; });
        result = script.run([&] { return dialog.open(); });
    });
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(contains(failures[0], "unexpected message box"));
    EXPECT_TRUE(contains(failures[0], "A name is needed."));
    EXPECT_TRUE(contains(failures[0], "Button 1 \"OK\"")) << "the window tree";
    EXPECT_EQ(result, IDCANCEL);
}

TEST(Script, FailsOnAMessageBoxOfATextThatIsNotTheExpectedOne) {
    const auto failures = failuresOf([] {
        Script script;
        script.expectMessage(L"Caption", L"Expected", MB_ICONERROR);
        script.run([] { return MessageBoxW(nullptr, L"Actual", L"Title", MB_ICONWARNING); });
    });
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(contains(failures[0], "caption: \"Title\"\n  expected: \"Caption\""));
    EXPECT_TRUE(contains(failures[0], "text: \"Actual\"\n  expected: \"Expected\""));
    EXPECT_TRUE(contains(failures[0], "icon: MB_ICONWARNING\n  expected: MB_ICONERROR"));
}

TEST(Script, FailsOnOtherButtonsAndDefaultThanExpected) {
    const auto failures = failuresOf([] {
        Script script;
        script.expectMessage(L"C", L"T", 0).buttons(MB_OKCANCEL).defaultButton(IDOK).answer(IDNO);
        script.run([] { return MessageBoxW(nullptr, L"T", L"C", MB_YESNO | MB_DEFBUTTON2); });
    });
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(contains(failures[0], "buttons: IDYES IDNO\n  expected: IDOK IDCANCEL"));
    EXPECT_TRUE(contains(failures[0], "default button: IDNO\n  expected: IDOK"));
}

TEST(Script, FailsOnAMessageBoxThatIsNotOwnedByTheDialog) {
    const RawDialog dialog =
        RawDialog(L"D")
            .button(openButton, L"Ask")
            .button(IDCANCEL, L"X")
            .onCommand([](HWND, int, int) { MessageBoxW(nullptr, L"T", L"C", MB_OK); });
    const auto failures = failuresOf([&] {
        Script script;
        script.onDialog([](Dialog& d) {
            d.press(openButton);
            d.press(IDCANCEL);
        });
        script.expectMessage(L"C", L"T", 0).ownedByDialog();
        script.run([&] { return dialog.open(); });
    });
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(contains(failures[0], "owner: none\n  expected: \"D\" ("));
}

TEST(Script, FailsOnAMessageBoxThatNeverComes) {
    const RawDialog dialog = nameDialog();
    INT_PTR result = 0;
    const auto failures = failuresOf([&] {
        Script script;
        script.patience(5);
        script.onDialog([](Dialog&) {});
        script.expectMessage(L"Names", L"A name is needed.", MB_ICONERROR);
        result = script.run([&] { return dialog.open(); });
    });
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(contains(failures[0], "does not come: the message box \"A name is needed.\""));
    EXPECT_TRUE(contains(failures[0], "ScriptTest.cpp:")) << "the line of the expectation";
    EXPECT_EQ(result, IDCANCEL);
}

TEST(Script, FailsOnADialogThatNeverComes) {
    const RawDialog dialog = nameDialog();
    const auto failures = failuresOf([&] {
        Script script;
        script.patience(5);
        script.onDialog([](Dialog&) {});
        script.onDialog(kit::titled(L"Another"), [](Dialog&) {});
        script.run([&] { return dialog.open(); });
    });
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(contains(failures[0], "does not come: a particular dialog"));
}

TEST(Script, FailsForEachStepThatTheConversationDidNotReach) {
    const RawDialog dialog = nameDialog();
    const auto failures = failuresOf([&] {
        Script script;
        script.onDialog([](Dialog& d) { d.press(IDCANCEL); });
        script.onDialog([](Dialog&) {});
        script.expectMessage(L"Names", L"Unmet", 0);
        script.run([&] { return dialog.open(); });
    });
    ASSERT_EQ(failures.size(), 2U);
    EXPECT_TRUE(contains(failures[0], "never came: a dialog"));
    EXPECT_TRUE(contains(failures[1], "never came: the message box \"Unmet\""));
}

TEST(Script, FailsOnADialogWithoutAStep) {
    const RawDialog dialog = nameDialog();
    const auto failures = failuresOf([&] {
        Script script;
        EXPECT_EQ(script.run([&] { return dialog.open(); }), IDCANCEL);
    });
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(contains(failures[0], "unexpected dialog: \"Name\""));
}

TEST(Script, FailsOnADialogThatTheLastStepLeavesOpen) {
    const RawDialog dialog = nameDialog();
    const auto failures = failuresOf([&] {
        Script script;
        script.onDialog([](Dialog&) {});
        EXPECT_EQ(script.run([&] { return dialog.open(); }), IDCANCEL);
    });
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(contains(failures[0], "at its end"));
}

TEST(Script, FailsOnAPressOfADisabledButton) {
    const RawDialog dialog = nameDialog();
    const auto failures = failuresOf([&] {
        Script script;
        script.onDialog([](Dialog& d) { d.press(deadButton); });
        script.run([&] { return dialog.open(); });
    });
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(contains(failures[0], "disabled control 103"));
}

TEST(Script, FailsOnAControlThatIsNotThere) {
    const RawDialog dialog = nameDialog();
    const auto failures = failuresOf([&] {
        Script script;
        script.onDialog([](Dialog& d) { d.type(999, L"x"); });
        script.run([&] { return dialog.open(); });
    });
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(contains(failures[0], "no control 999"));
}

TEST(Script, FailsOnAnExceptionInAStep) {
    const RawDialog dialog = nameDialog();
    const auto failures = failuresOf([&] {
        Script script;
        script.onDialog([](Dialog&) { throw std::runtime_error("broken"); });
        script.run([&] { return dialog.open(); });
    });
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(contains(failures[0], "broken"));
}

TEST(Script, DismissesADialogThatDoesNotTakeCancel) {
    const RawDialog stubborn = RawDialog(L"Stubborn")
                                   .button(IDOK, L"OK")
                                   .onMessage([](HWND, UINT message, WPARAM, LPARAM) {
                                       return message == WM_COMMAND || message == WM_CLOSE;
                                   });
    const auto failures = failuresOf([&] {
        Script script;
        EXPECT_EQ(script.run([&] { return stubborn.open(); }), IDCANCEL);
    });
    EXPECT_EQ(failures.size(), 1U);
}

TEST(Script, DismissesAMessageBoxWithoutCancel) {
    const auto failures = failuresOf([] {
        Script script;
        EXPECT_EQ(script.run([] { return MessageBoxW(nullptr, L"T", L"C", MB_YESNO); }), IDNO);
    });
    EXPECT_EQ(failures.size(), 1U);
}

TEST(Script, FailsWhenItIsNeverRun) {
    const auto failures = failuresOf([] {
        Script script;
        script.onDialog([](Dialog&) {});
    });
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(contains(failures[0], "never run"));
}

TEST(Script, KnowsTheOwnerOfAMessageThatComesBeforeItsDialogIsShown) {
    const RawDialog dialog =
        RawDialog(L"Early").button(IDCANCEL, L"Cancel").onInit([](HWND window) {
            MessageBoxW(window, L"T", L"C", MB_OK);
        });
    Script script;
    script.expectMessage(L"C", L"T", 0).ownedByDialog();
    script.onDialog([](Dialog& d) { d.press(IDCANCEL); });
    EXPECT_EQ(script.run([&] { return dialog.open(); }), IDCANCEL);
}

TEST(Script, KnowsTheOwnerOfAMessageThatComesAfterANestedDialog) {
    const RawDialog inner = RawDialog(L"Inner").button(IDOK, L"OK");
    const RawDialog dialog = RawDialog(L"Outer")
                                 .button(openButton, L"Open")
                                 .button(IDCANCEL, L"Cancel")
                                 .onCommand([&](HWND window, int, int) {
                                     inner.open(window);
                                     MessageBoxW(window, L"T", L"C", MB_OK);
                                 });
    Script script;
    script.onDialog([](Dialog& d) {
        d.press(openButton);
        d.press(IDCANCEL);
    });
    script.onDialog(kit::titled(L"Inner"), [](Dialog& d) { d.press(IDOK); });
    script.expectMessage(L"C", L"T", 0).ownedByDialog();
    EXPECT_EQ(script.run([&] { return dialog.open(); }), IDCANCEL);
}
