// What a person sees of a dialog, and does in it.
#include "kit/FailuresOf.h"
#include "kit/RawDialog.h"
#include "kit/kit.h"

#include <commctrl.h>
#include <shellapi.h>

#include <map>

using kit::Dialog;
using kit::Script;
using kit::Selection;

namespace {

constexpr int nameEdit = 101;
constexpr int readOnlyEdit = 102;
constexpr int dayCheck = 103;
constexpr int firstRadio = 104;
constexpr int lastRadio = 106;
constexpr int kindCombo = 107;
constexpr int hiddenEdit = 108;
constexpr int deadButton = 109;
constexpr int upDown = 110;
constexpr int countEdit = 111;

class DialogOnScreen : public testing::Test {
protected:
    DialogOnScreen() {
        dialog_.label(L"&Name:")
            .edit(nameEdit)
            .edit(readOnlyEdit, ES_READONLY)
            .checkBox(dayCheck, L"&Day")
            .radio(firstRadio, L"&1", WS_GROUP)
            .radio(firstRadio + 1, L"&2")
            .radio(lastRadio, L"&3")
            .control(kindCombo, L"ComboBox", L"",
                     WS_GROUP | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, 1)
            .edit(hiddenEdit)
            .button(deadButton, L"Dead", WS_DISABLED)
            .edit(countEdit)
            .button(IDOK, L"OK", BS_DEFPUSHBUTTON)
            .button(IDCANCEL, L"Cancel")
            .onInit([](HWND window) {
                for (const wchar_t* kind : {L"First", L"Second", L"Third"})
                    SendDlgItemMessageW(window, kindCombo, CB_ADDSTRING, 0,
                                        reinterpret_cast<LPARAM>(kind));
                SetWindowPos(GetDlgItem(window, kindCombo), nullptr, 0, 0, 150, 120,
                             SWP_NOMOVE | SWP_NOZORDER);
                ShowWindow(GetDlgItem(window, hiddenEdit), SW_HIDE);
            })
            .onCommand([this](HWND, int id, int code) {
                ++notifications_[{id, code}];
            });
    }

    /// Opens the dialog for one step and cancels it.
    void inDialog(const Script::Step& step) {
        Script script;
        script.onDialog([&](Dialog& d) {
            step(d);
            d.press(IDCANCEL);
        });
        EXPECT_EQ(script.run([&] { return dialog_.open(); }), IDCANCEL);
    }

    /// The single failure that a step makes.
    std::string failureOf(const Script::Step& step) {
        const auto failures = failuresOf([&] { inDialog(step); });
        EXPECT_EQ(failures.size(), 1U);
        return failures.empty() ? "" : failures[0];
    }

    int notified(int id, int code) { return notifications_[{id, code}]; }

    RawDialog dialog_{L"Sample"};
    std::map<std::pair<int, int>, int> notifications_;
};

} // namespace

TEST_F(DialogOnScreen, ShowsItsCaptionStateAndPlace) {
    inDialog([](Dialog& d) {
        EXPECT_EQ(d.caption(), L"Sample");
        EXPECT_EQ(d.text(dayCheck), L"&Day");
        EXPECT_TRUE(d.exists(nameEdit));
        EXPECT_FALSE(d.exists(999));
        EXPECT_TRUE(d.enabled(nameEdit));
        EXPECT_FALSE(d.enabled(deadButton));
        EXPECT_TRUE(d.visible(nameEdit));
        EXPECT_FALSE(d.visible(hiddenEdit));
        EXPECT_EQ(d.defaultButton(), IDOK);
        EXPECT_EQ(d.owner(), nullptr);
        const RECT whole = d.rect();
        const RECT name = d.rect(nameEdit);
        EXPECT_GT(name.left, 0);
        EXPECT_LT(name.right, whole.right - whole.left);
        EXPECT_GT(d.rect(readOnlyEdit).top, name.top);
    });
}

TEST_F(DialogOnScreen, FiresOneChangePerKeyOfATypedText) {
    inDialog([this](Dialog& d) {
        d.type(nameEdit, L"Norte");
        EXPECT_EQ(d.text(nameEdit), L"Norte");
        EXPECT_EQ(notified(nameEdit, EN_CHANGE), 5);
        EXPECT_EQ(d.focus(), nameEdit);
        d.type(nameEdit, L"12");
        EXPECT_EQ(d.text(nameEdit), L"12") << "the old text is replaced";
        EXPECT_EQ(notified(nameEdit, EN_CHANGE), 7);
    });
}

TEST_F(DialogOnScreen, ErasesByTypingNothing) {
    inDialog([this](Dialog& d) {
        d.type(nameEdit, L"a");
        d.type(nameEdit, L"");
        EXPECT_EQ(d.text(nameEdit), L"");
        EXPECT_EQ(notified(nameEdit, EN_CHANGE), 2);
    });
}

TEST_F(DialogOnScreen, TypesBehindTheTextAndOverTheSelection) {
    inDialog([](Dialog& d) {
        d.type(nameEdit, L"3.7");
        d.append(nameEdit, L"5");
        EXPECT_EQ(d.text(nameEdit), L"3.75");
        EXPECT_EQ(d.selection(nameEdit), (Selection{4, 4}));
        d.select(nameEdit, {1, 2});
        EXPECT_EQ(d.selection(nameEdit), (Selection{1, 2}));
        d.insert(nameEdit, L",0");
        EXPECT_EQ(d.text(nameEdit), L"3,075");
        EXPECT_EQ(d.selection(nameEdit), (Selection{3, 3}));
    });
}

TEST_F(DialogOnScreen, SetsATextAtOnce) {
    inDialog([this](Dialog& d) {
        d.setText(nameEdit, L"Sur");
        EXPECT_EQ(d.text(nameEdit), L"Sur");
        EXPECT_EQ(notified(nameEdit, EN_CHANGE), 1);
    });
}

TEST_F(DialogOnScreen, DoesNotLetTypeWhereNobodyCan) {
    EXPECT_TRUE(contains(failureOf([](Dialog& d) { d.type(readOnlyEdit, L"x"); }),
                         "Nobody can type into control 102"));
    EXPECT_TRUE(
        contains(failureOf([](Dialog& d) { d.type(hiddenEdit, L"x"); }), "hidden control 108"));
    EXPECT_TRUE(contains(failureOf([](Dialog& d) { d.type(dayCheck, L"x"); }),
                         "Nobody can type into control 103"));
}

TEST_F(DialogOnScreen, ClicksACheckBoxOnlyWhereItsStateIsNotTheWantedOne) {
    inDialog([this](Dialog& d) {
        EXPECT_FALSE(d.checked(dayCheck));
        d.check(dayCheck);
        EXPECT_TRUE(d.checked(dayCheck));
        d.check(dayCheck);
        EXPECT_EQ(notified(dayCheck, BN_CLICKED), 1);
        d.check(dayCheck, false);
        EXPECT_FALSE(d.checked(dayCheck));
        d.click(dayCheck);
        EXPECT_TRUE(d.checked(dayCheck));
        EXPECT_EQ(notified(dayCheck, BN_CLICKED), 3);
        EXPECT_EQ(d.focus(), dayCheck);
    });
}

TEST_F(DialogOnScreen, ChecksOneRadioButtonOfTheGroup) {
    inDialog([this](Dialog& d) {
        EXPECT_EQ(d.radio(firstRadio, lastRadio), 0);
        d.click(firstRadio);
        d.click(lastRadio);
        EXPECT_EQ(d.radio(firstRadio, lastRadio), lastRadio);
        EXPECT_FALSE(d.checked(firstRadio));
        EXPECT_EQ(notified(lastRadio, BN_CLICKED), 1);
    });
}

TEST_F(DialogOnScreen, DoesNotLetPressWhatIsNoButtonOrDead) {
    EXPECT_TRUE(contains(failureOf([](Dialog& d) { d.press(nameEdit); }), "No push button"));
    EXPECT_TRUE(contains(failureOf([](Dialog& d) { d.click(nameEdit); }), "No button"));
    EXPECT_TRUE(contains(failureOf([](Dialog& d) { d.press(deadButton); }), "disabled"));
    EXPECT_TRUE(contains(failureOf([](Dialog& d) { d.checked(nameEdit); }), "Neither a check"));
}

TEST_F(DialogOnScreen, SendsACommandOfADeadButtonWhenToldSo) {
    inDialog([this](Dialog& d) {
        d.command(deadButton);
        EXPECT_EQ(notified(deadButton, BN_CLICKED), 1);
    });
}

TEST_F(DialogOnScreen, ChoosesAnEntryOfADropDownListWithOneNotification) {
    inDialog([this](Dialog& d) {
        EXPECT_EQ(d.combo(kindCombo).selected(), -1);
        EXPECT_EQ(d.combo(kindCombo).texts(),
                  (std::vector<std::wstring>{L"First", L"Second", L"Third"}));
        d.choose(kindCombo, 2);
        EXPECT_EQ(d.combo(kindCombo).selected(), 2);
        EXPECT_EQ(notified(kindCombo, CBN_SELCHANGE), 1);
        EXPECT_EQ(notified(kindCombo, CBN_SELENDOK), 1);
        EXPECT_EQ(notified(kindCombo, CBN_DROPDOWN), 1);
        EXPECT_EQ(notified(kindCombo, CBN_CLOSEUP), 1);
        EXPECT_EQ(d.focus(), kindCombo);
        d.choose(kindCombo, L"Second");
        EXPECT_EQ(d.text(kindCombo), L"Second");
        EXPECT_EQ(notified(kindCombo, CBN_SELCHANGE), 2);
    });
    EXPECT_TRUE(contains(failureOf([](Dialog& d) { d.choose(kindCombo, L"Fourth"); }),
                         "no entry \"Fourth\""));
}

TEST_F(DialogOnScreen, WalksThroughADropDownListByKeys) {
    inDialog([this](Dialog& d) {
        d.combo(kindCombo).walk(3);
        EXPECT_EQ(d.combo(kindCombo).selected(), 2);
        EXPECT_EQ(notified(kindCombo, CBN_SELCHANGE), 3);
        d.combo(kindCombo).walk(-1);
        EXPECT_EQ(d.combo(kindCombo).selected(), 1);
    });
}

TEST_F(DialogOnScreen, TurnsAnUpDownControlByKeysAndByItsArrows) {
    for (const DWORD keys : {UDS_ARROWKEYS, 0}) {
        inDialog([keys](Dialog& d) {
            const HWND spinner = CreateWindowExW(
                0, UPDOWN_CLASSW, L"",
                WS_CHILD | WS_VISIBLE | UDS_SETBUDDYINT | UDS_ALIGNRIGHT | keys, 0, 0, 0, 0,
                d.handle(), reinterpret_cast<HMENU>(upDown), nullptr, nullptr);
            SendMessageW(spinner, UDM_SETBUDDY, reinterpret_cast<WPARAM>(d.control(countEdit)), 0);
            SendMessageW(spinner, UDM_SETRANGE32, 1, 5);
            SendMessageW(spinner, UDM_SETPOS32, 0, 2);
            d.spin(upDown, 2);
            EXPECT_EQ(d.text(countEdit), L"4");
            d.spin(upDown, -9);
            EXPECT_EQ(d.text(countEdit), L"1");
        });
    }
}

TEST_F(DialogOnScreen, KnowsWhoHasTheFocus) {
    inDialog([](Dialog& d) {
        EXPECT_EQ(d.focus(), nameEdit) << "the first control that takes it";
        d.focusOn(kindCombo);
        EXPECT_EQ(d.focus(), kindCombo);
        d.focusOn(nameEdit);
        EXPECT_EQ(d.focus(), nameEdit);
    });
}

TEST_F(DialogOnScreen, FindsControlsOfAPageInside) {
    inDialog([](Dialog& d) {
        const HWND page =
            CreateWindowExW(WS_EX_CONTROLPARENT, L"#32770", L"", WS_CHILD | WS_VISIBLE, 0, 0, 100,
                            100, d.handle(), nullptr, nullptr, nullptr);
        CreateWindowExW(0, L"Edit", L"inside", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, page,
                        reinterpret_cast<HMENU>(700), nullptr, nullptr);
        EXPECT_EQ(d.text(700), L"inside");
        d.type(700, L"typed");
        EXPECT_EQ(d.text(700), L"typed");
        EXPECT_EQ(d.focus(), 700);
    });
}

TEST_F(DialogOnScreen, AsksForHelpOnTheFocusedControlAndOnAnyOther) {
    std::vector<int> asked;
    dialog_.onMessage([&](HWND, UINT message, WPARAM, LPARAM lParam) {
        if (message != WM_HELP)
            return false;
        asked.push_back(reinterpret_cast<const HELPINFO*>(lParam)->iCtrlId);
        return true;
    });
    inDialog([](Dialog& d) {
        d.focusOn(dayCheck);
        d.help();
        d.helpOn(deadButton);
    });
    EXPECT_EQ(asked, (std::vector<int>{dayCheck, deadButton}));
}

TEST_F(DialogOnScreen, ClosesByTheBoxOfItsCaption) {
    Script script;
    script.onDialog([](Dialog& d) { d.close(); });
    EXPECT_EQ(script.run([&] { return dialog_.open(); }), IDCANCEL);
}

TEST_F(DialogOnScreen, RefusesDroppedFilesWhereNoWindowTakesThem) {
    EXPECT_TRUE(contains(failureOf([](Dialog& d) { d.drop({L"C:\\a.txt"}); }), "takes no files"));
}

TEST_F(DialogOnScreen, TakesDroppedFilesWholeHoweverLongTheirNames) {
    std::vector<std::wstring> received;
    dialog_.onInit([](HWND window) { DragAcceptFiles(window, TRUE); });
    dialog_.onMessage([&](HWND, UINT message, WPARAM wParam, LPARAM) {
        if (message != WM_DROPFILES)
            return false;
        const auto drop = reinterpret_cast<HDROP>(wParam);
        const UINT count = DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
        for (UINT i = 0; i < count; ++i) {
            std::wstring name(DragQueryFileW(drop, i, nullptr, 0) + 1, L'\0');
            name.resize(DragQueryFileW(drop, i, name.data(), static_cast<UINT>(name.size())));
            received.push_back(name);
        }
        DragFinish(drop);
        return true;
    });
    const std::vector<std::wstring> files = {L"C:\\á b.txt", L"C:\\" + std::wstring(1000, L'x')};
    inDialog([&](Dialog& d) {
        d.drop(files);
        d.dropOn(nameEdit, {L"C:\\onto the edit"});
    });
    ASSERT_EQ(received.size(), 3U);
    EXPECT_EQ(received[0], files[0]);
    EXPECT_EQ(received[1], files[1]);
    EXPECT_EQ(received[2], L"C:\\onto the edit");
}

TEST_F(DialogOnScreen, DoesNotLetUseADialogThatWaitsForAnother) {
    const auto failures = failuresOf([&] {
        HWND outer = nullptr;
        dialog_.onCommand([&](HWND window, int id, int code) {
            if (id == dayCheck && code == BN_CLICKED)
                MessageBoxW(window, L"T", L"C", MB_OK);
        });
        Script script;
        script.onDialog([&](Dialog& d) {
            outer = d.handle();
            d.click(dayCheck);
            d.press(IDCANCEL);
        });
        script.expectMessage().inspect([&](kit::MessageDialog&) { Dialog(outer).press(IDOK); });
        script.run([&] { return dialog_.open(); });
    });
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(contains(failures[0], "while another one is open before it"));
}
