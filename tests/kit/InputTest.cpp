// The real keyboard and mouse.
#include "kit/FailuresOf.h"
#include "kit/RawDialog.h"
#include "kit/kit.h"

using kit::Dialog;
using kit::Held;
using kit::Script;
namespace keyboard = kit::keyboard;
namespace mouse = kit::mouse;

namespace {

constexpr int nameEdit = 101;
constexpr int dayCheck = 102;
constexpr int firstRadio = 103;
constexpr int secondRadio = 104;
constexpr int askButton = 105;

class RealInput : public testing::Test {
protected:
    RealInput() {
        dialog_.label(L"&Name:")
            .edit(nameEdit)
            .checkBox(dayCheck, L"&Day")
            .radio(firstRadio, L"&First", WS_GROUP)
            .radio(secondRadio, L"&Second")
            .button(askButton, L"&Ask", WS_GROUP)
            .button(IDOK, L"OK", BS_DEFPUSHBUTTON)
            .button(IDCANCEL, L"Cancel")
            .onCommand([](HWND window, int id, int code) {
                if (id == askButton && code == BN_CLICKED)
                    MessageBoxW(window, L"Sure?", L"Ask", MB_YESNO | MB_ICONQUESTION);
            });
    }

    INT_PTR inDialog(const Script::Step& step) {
        script_.onDialog(step);
        return script_.run([&] { return dialog_.open(); });
    }

    RawDialog dialog_{L"Input"};
    Script script_;
};

} // namespace

TEST_F(RealInput, WalksTheTabOrderBothWays) {
    inDialog([](Dialog& d) {
        std::vector<int> order;
        for (int i = 0; i < 7; ++i) {
            order.push_back(d.focus());
            keyboard::press(VK_TAB);
        }
        EXPECT_EQ(order, (std::vector<int>{nameEdit, dayCheck, firstRadio, secondRadio, askButton,
                                           IDOK, IDCANCEL}));
        EXPECT_EQ(d.focus(), nameEdit);
        keyboard::press(VK_TAB, Held::Shift);
        EXPECT_EQ(d.focus(), IDCANCEL);
        d.press(IDCANCEL);
    });
}

TEST_F(RealInput, ReachesControlsByTheirMnemonics) {
    inDialog([](Dialog& d) {
        keyboard::mnemonic(L'd');
        EXPECT_TRUE(d.checked(dayCheck));
        EXPECT_EQ(d.focus(), dayCheck);
        keyboard::mnemonic(L'n');
        EXPECT_EQ(d.focus(), nameEdit);
        d.press(IDCANCEL);
    });
}

TEST_F(RealInput, TypesIntoWhatHasTheFocus) {
    inDialog([](Dialog& d) {
        keyboard::type(L"Cañón 1");
        EXPECT_EQ(d.text(nameEdit), L"Cañón 1");
        keyboard::press(VK_BACK);
        keyboard::press(VK_HOME);
        keyboard::press(VK_DELETE);
        EXPECT_EQ(d.text(nameEdit), L"añón ");
        d.press(IDCANCEL);
    });
}

TEST_F(RealInput, TogglesByTheSpaceBarAndMovesByArrows) {
    inDialog([](Dialog& d) {
        d.focusOn(dayCheck);
        keyboard::press(VK_SPACE);
        EXPECT_TRUE(d.checked(dayCheck));
        keyboard::press(VK_SPACE);
        EXPECT_FALSE(d.checked(dayCheck));
        d.click(firstRadio);
        keyboard::press(VK_DOWN);
        EXPECT_TRUE(d.checked(secondRadio));
        EXPECT_EQ(d.focus(), secondRadio);
        d.press(IDCANCEL);
    });
}

TEST_F(RealInput, EndsTheDialogByEnter) {
    EXPECT_EQ(inDialog([](Dialog&) { keyboard::press(VK_RETURN); }), IDOK);
}

TEST_F(RealInput, EndsTheDialogByEscape) {
    EXPECT_EQ(inDialog([](Dialog&) { keyboard::press(VK_ESCAPE); }), IDCANCEL);
}

TEST_F(RealInput, AsksForHelpByF1) {
    std::vector<int> asked;
    dialog_.onMessage([&](HWND, UINT message, WPARAM, LPARAM lParam) {
        if (message == WM_HELP)
            asked.push_back(reinterpret_cast<const HELPINFO*>(lParam)->iCtrlId);
        return message == WM_HELP;
    });
    inDialog([](Dialog& d) {
        d.focusOn(dayCheck);
        keyboard::press(VK_F1);
        d.press(IDCANCEL);
    });
    EXPECT_EQ(asked, std::vector<int>{dayCheck});
}

TEST_F(RealInput, RunsTheStepsOfAMessageBoxThatAKeyOpens) {
    script_.onDialog([](Dialog& d) {
        keyboard::mnemonic(L'a');
        EXPECT_EQ(d.focus(), askButton);
    });
    script_.expectMessage(L"Ask", L"Sure?", MB_ICONQUESTION)
        .buttons(MB_YESNO)
        .defaultButton(IDYES)
        .ownedByDialog()
        .answer(IDNO);
    EXPECT_EQ(inDialog([](Dialog& d) { d.press(IDOK); }), IDOK);
}

TEST_F(RealInput, ClicksWithTheMouse) {
    std::vector<UINT> seen;
    dialog_.onMessage([&](HWND, UINT message, WPARAM, LPARAM) {
        if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK || message == WM_CONTEXTMENU)
            seen.push_back(message);
        return false;
    });
    inDialog([&](Dialog& d) {
        mouse::click(d.control(dayCheck));
        EXPECT_TRUE(d.checked(dayCheck));
        mouse::click(d.handle(), {2, 2});
        mouse::doubleClick(d.handle(), {2, 3});
        mouse::rightClick(d.handle(), {2, 2});
        EXPECT_EQ(std::count(seen.begin(), seen.end(), WM_LBUTTONDBLCLK), 1);
        EXPECT_EQ(seen.back(), static_cast<UINT>(WM_CONTEXTMENU));
        mouse::click(d.control(IDOK));
    });
}

TEST_F(RealInput, WaitsForAStateByName) {
    inDialog([](Dialog& d) {
        PostMessageW(d.control(nameEdit), WM_CHAR, L'x', 1);
        kit::pumpUntil("the name is x", [&] { return d.text(nameEdit) == L"x"; });
        EXPECT_EQ(d.text(nameEdit), L"x");
        d.press(IDCANCEL);
    });
}

TEST_F(RealInput, LetsAFrameworkSeeEachMessageFirst) {
    bool sawTab = false;
    kit::setMessageFilter([&](MSG& message) {
        const bool isTab = message.message == WM_KEYDOWN && message.wParam == VK_TAB;
        sawTab = sawTab || isTab;
        return isTab;
    });
    inDialog([](Dialog& d) {
        keyboard::press(VK_TAB);
        EXPECT_EQ(d.focus(), nameEdit) << "the filter has taken the key";
        d.press(IDCANCEL);
    });
    kit::setMessageFilter(nullptr);
    EXPECT_TRUE(sawTab);
}
