// The controls of the window manager, in a real window.
#include "ControlWindow.h"
#include "GdiTestResource.h"

#include <kit/kit.h>

namespace {

constexpr UINT id = 7;
const CRect place(10, 10, 210, 110);

/// A window with one control.
template <class Control>
class With : public testing::Test {
protected:
    ControlWindow window;
    Control control;
};

using Statics = With<CStatic>;
using Buttons = With<CButton>;
using Edits = With<CEdit>;
using ListBoxes = With<CListBox>;
using ComboBoxes = With<CComboBox>;
using ScrollBars = With<CScrollBar>;

TEST_F(Statics, ShowATextOrAnImage) {
    ASSERT_TRUE(control.Create(L"Cota", WS_CHILD | WS_VISIBLE, place, &window));
    EXPECT_EQ(control.GetDlgCtrlID(), 0xffff);
    CString text;
    control.GetWindowText(text);
    EXPECT_STREQ(text, L"Cota");
    EXPECT_TRUE(control.IsKindOf(RUNTIME_CLASS(CStatic)));
}

TEST_F(Statics, ReturnTheImageThatWasThere) {
    ASSERT_TRUE(control.Create(L"", WS_CHILD | SS_ICON, place, &window, id));
    const HICON icon = ::LoadIcon(nullptr, IDI_WARNING);
    EXPECT_EQ(control.SetIcon(icon), nullptr);
    EXPECT_EQ(control.GetIcon(), icon);
    EXPECT_EQ(control.SetIcon(nullptr), icon);

    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadBitmap(IDB_STRIP));
    CStatic picture;
    ASSERT_TRUE(picture.Create(L"", WS_CHILD | SS_BITMAP, place, &window, id + 1));
    EXPECT_EQ(picture.SetBitmap(bitmap), nullptr);
    EXPECT_EQ(picture.GetBitmap(), static_cast<HBITMAP>(bitmap));
    picture.SetBitmap(nullptr);
}

TEST_F(Buttons, AreCheckedByProgramWithoutANotification) {
    ASSERT_TRUE(
        control.Create(L"&Grid", WS_CHILD | WS_VISIBLE | BS_AUTO3STATE, place, &window, id));
    EXPECT_EQ(control.GetButtonStyle(), static_cast<UINT>(BS_AUTO3STATE));
    EXPECT_EQ(control.GetCheck(), BST_UNCHECKED);
    control.SetCheck(BST_INDETERMINATE);
    EXPECT_EQ(control.GetCheck(), BST_INDETERMINATE);
    EXPECT_TRUE(window.commands.empty());
}

TEST_F(Buttons, TellOfAClick) {
    ASSERT_TRUE(
        control.Create(L"&Grid", WS_CHILD | WS_VISIBLE | BS_AUTOCHECKBOX, place, &window, id));
    control.SendMessage(BM_CLICK);
    EXPECT_EQ(control.GetCheck(), BST_CHECKED);
    EXPECT_TRUE(std::ranges::count(window.commands, BN_CLICKED) == 1);
}

TEST_F(Buttons, ShowThatTheyArePressed) {
    ASSERT_TRUE(control.Create(L"OK", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, place, &window, IDOK));
    control.SetState(TRUE);
    EXPECT_TRUE(control.GetState() & BST_PUSHED);
    control.SetState(FALSE);
    EXPECT_FALSE(control.GetState() & BST_PUSHED);
    control.SetButtonStyle(BS_DEFPUSHBUTTON);
    EXPECT_EQ(control.GetButtonStyle() & 0xfu, static_cast<UINT>(BS_DEFPUSHBUTTON));
}

TEST_F(Buttons, ShowAnImage) {
    ASSERT_TRUE(control.Create(L"", WS_CHILD | BS_PUSHBUTTON | BS_ICON, place, &window, id));
    const HICON icon = ::LoadIcon(nullptr, IDI_WARNING);
    EXPECT_EQ(control.SetIcon(icon), nullptr);
    EXPECT_EQ(control.GetIcon(), icon);
}

TEST_F(Buttons, KnowTheirIdealSize) {
    ASSERT_TRUE(control.Create(L"Orthophoto", WS_CHILD | BS_PUSHBUTTON, place, &window, id));
    CSize size;
    EXPECT_TRUE(control.GetIdealSize(&size));
    EXPECT_GT(size.cx, size.cy);
}

class EditsOfOneLine : public Edits {
protected:
    void SetUp() override {
        ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, place, &window, id));
        control.SetWindowText(L"0123456789");
    }
    int Start() const {
        int start, end;
        control.GetSel(start, end);
        return start;
    }
    int End() const {
        int start, end;
        control.GetSel(start, end);
        return end;
    }
};

TEST_F(EditsOfOneLine, SelectTheirText) {
    control.SetSel(2, 5);
    EXPECT_EQ(Start(), 2);
    EXPECT_EQ(End(), 5);
    EXPECT_EQ(control.GetSel(), static_cast<DWORD>(MAKELONG(2, 5)));
    control.SetSel(0, -1);
    EXPECT_EQ(Start(), 0);
    EXPECT_EQ(End(), 10);
    control.SetSel(static_cast<DWORD>(MAKELONG(3, 4)));
    EXPECT_EQ(Start(), 3);
    EXPECT_EQ(End(), 4);
    control.SetSel(static_cast<DWORD>(MAKELONG(0, -1)));
    EXPECT_EQ(End(), 10) << "0 and -1: all of it";
}

TEST_F(EditsOfOneLine, ReplaceTheSelection) {
    control.SetSel(1, 9);
    control.ReplaceSel(L"...", TRUE);
    CString text;
    control.GetWindowText(text);
    EXPECT_STREQ(text, L"0...9");
    EXPECT_TRUE(control.CanUndo());
    EXPECT_TRUE(control.Undo());
    control.GetWindowText(text);
    EXPECT_STREQ(text, L"0123456789");
    control.EmptyUndoBuffer();
    EXPECT_FALSE(control.CanUndo());
}

TEST_F(EditsOfOneLine, CutAndPaste) {
    control.SetSel(0, 4);
    control.Cut();
    control.SetSel(6, 6);
    control.Paste();
    CString text;
    control.GetWindowText(text);
    EXPECT_STREQ(text, L"4567890123");
    control.SetSel(0, 1);
    control.Clear();
    control.GetWindowText(text);
    EXPECT_STREQ(text, L"567890123");
}

TEST_F(EditsOfOneLine, AreLimitedReadOnlyAndModified) {
    control.SetLimitText(12);
    EXPECT_EQ(control.GetLimitText(), 12u);
    EXPECT_FALSE(control.GetModify());
    control.SetModify();
    EXPECT_TRUE(control.GetModify());
    EXPECT_TRUE(control.SetReadOnly());
    EXPECT_TRUE(control.GetStyle() & ES_READONLY);
    control.SetPasswordChar(L'*');
    EXPECT_EQ(control.GetPasswordChar(), L'*');
}

TEST_F(EditsOfOneLine, TellOfAChangeEvenToAnEqualText) {
    window.commands.clear();
    control.SetWindowText(L"0123456789");
    EXPECT_EQ(std::ranges::count(window.commands, EN_CHANGE), 1);
}

TEST_F(EditsOfOneLine, ShowAHintWhileEmpty) {
    EXPECT_TRUE(control.SetCueBanner(L"Name"));
    EXPECT_STREQ(control.GetCueBanner(), L"Name");
}

TEST_F(EditsOfOneLine, HaveMargins) {
    control.SetMargins(3, 5);
    EXPECT_EQ(control.GetMargins(), static_cast<DWORD>(MAKELONG(3, 5)));
}

class EditsOfManyLines : public Edits {
protected:
    void SetUp() override {
        ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE | ES_MULTILINE, place, &window, id));
        control.SetWindowText(L"one\r\ntwo\r\nthree");
    }
};

TEST_F(EditsOfManyLines, KnowTheirLines) {
    EXPECT_EQ(control.GetLineCount(), 3);
    EXPECT_EQ(control.LineIndex(1), 5);
    EXPECT_EQ(control.LineLength(control.LineIndex(2)), 5);
    EXPECT_EQ(control.LineFromChar(6), 1);
    EXPECT_EQ(control.GetFirstVisibleLine(), 0);
    wchar_t line[16] = {};
    EXPECT_EQ(control.GetLine(2, line, 15), 5);
    EXPECT_STREQ(line, L"three");
}

TEST_F(EditsOfManyLines, KnowWhereACharacterIs) {
    const CPoint position = control.PosFromChar(5);
    EXPECT_EQ(LOWORD(control.CharFromPos(position + CSize(1, 1))), 5);
    EXPECT_EQ(HIWORD(control.CharFromPos(position + CSize(1, 1))), 1);
}

class ListBoxesOfOne : public ListBoxes {
protected:
    void SetUp() override {
        ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE | LBS_NOTIFY, place, &window, id));
        for (const wchar_t* text : {L"eje", L"borde", L"cota"})
            control.AddString(text);
        window.commands.clear();
    }
};

TEST_F(ListBoxesOfOne, KeepTheirItemsInTheOrderOfTheirComing) {
    EXPECT_EQ(control.GetCount(), 3);
    CString text(L"before");
    control.GetText(1, text);
    EXPECT_STREQ(text, L"borde");
    EXPECT_EQ(control.GetTextLen(1), 5);
    EXPECT_EQ(control.InsertString(0, L"muro"), 0);
    EXPECT_EQ(control.AddString(L"arroyo"), 4);
    EXPECT_EQ(control.DeleteString(0), 4) << "how many are left";
    control.ResetContent();
    EXPECT_EQ(control.GetCount(), 0);
}

TEST_F(ListBoxesOfOne, FindItems) {
    EXPECT_EQ(control.FindString(-1, L"bor"), 1);
    EXPECT_EQ(control.FindStringExact(-1, L"bor"), LB_ERR);
    EXPECT_EQ(control.FindStringExact(-1, L"COTA"), 2) << "case does not count";
}

TEST_F(ListBoxesOfOne, CarryData) {
    int datum = 0;
    EXPECT_NE(control.SetItemData(0, 42), LB_ERR);
    EXPECT_EQ(control.GetItemData(0), 42u);
    control.SetItemDataPtr(1, &datum);
    EXPECT_EQ(control.GetItemDataPtr(1), &datum);
}

TEST_F(ListBoxesOfOne, SelectByProgramWithoutANotification) {
    EXPECT_EQ(control.GetCurSel(), LB_ERR);
    EXPECT_EQ(control.SetCurSel(1), 1);
    EXPECT_EQ(control.GetCurSel(), 1);
    EXPECT_EQ(control.SelectString(-1, L"cota"), 2);
    EXPECT_EQ(control.GetCurSel(), 2);
    control.SetCurSel(-1);
    EXPECT_EQ(control.GetCurSel(), LB_ERR);
    EXPECT_TRUE(window.commands.empty());
}

TEST_F(ListBoxesOfOne, KnowWhereAnItemIs) {
    CRect item;
    control.GetItemRect(1, &item);
    BOOL outside = TRUE;
    EXPECT_EQ(control.ItemFromPoint(item.CenterPoint(), outside), 1u);
    EXPECT_FALSE(outside);
    EXPECT_EQ(control.GetItemHeight(0), item.Height());
    EXPECT_EQ(control.GetTopIndex(), 0);
}

class ListBoxesOfMany : public ListBoxes {
protected:
    void SetUp() override {
        ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE | LBS_NOTIFY | LBS_EXTENDEDSEL, place,
                                   &window, id));
        for (int i = 0; i < 5; ++i)
            control.AddString(L"item");
        window.commands.clear();
    }
    std::vector<int> Selected() const {
        std::vector<int> items(static_cast<size_t>(control.GetSelCount()));
        EXPECT_EQ(control.GetSelItems(static_cast<int>(items.size()), items.data()),
                  static_cast<int>(items.size()));
        return items;
    }
};

TEST_F(ListBoxesOfMany, SelectItemsOneByOneAllAndNone) {
    control.SetSel(1);
    control.SetSel(3, TRUE);
    EXPECT_EQ(Selected(), (std::vector{1, 3}));
    EXPECT_GT(control.GetSel(3), 0);
    control.SetSel(3, FALSE);
    EXPECT_EQ(Selected(), (std::vector{1}));
    control.SetSel(-1, TRUE);
    EXPECT_EQ(control.GetSelCount(), 5);
    control.SetSel(-1, FALSE);
    EXPECT_EQ(control.GetSelCount(), 0);
    EXPECT_TRUE(window.commands.empty());
}

TEST_F(ListBoxesOfMany, SelectARange) {
    EXPECT_NE(control.SelItemRange(TRUE, 1, 3), LB_ERR);
    EXPECT_EQ(Selected(), (std::vector{1, 2, 3}));
    control.SelItemRange(FALSE, 2, 2);
    EXPECT_EQ(Selected(), (std::vector{1, 3}));
}

class ComboBoxesToChoose : public ComboBoxes {
protected:
    void SetUp() override {
        ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, place, &window, id));
        for (const wchar_t* text : {L"metre", L"foot"})
            control.AddString(text);
        window.commands.clear();
    }
};

TEST_F(ComboBoxesToChoose, KeepTheirItems) {
    EXPECT_EQ(control.GetCount(), 2);
    CString text(L"before");
    control.GetLBText(1, text);
    EXPECT_STREQ(text, L"foot");
    EXPECT_EQ(control.GetLBTextLen(0), 5);
    EXPECT_EQ(control.InsertString(0, L"yard"), 0);
    EXPECT_EQ(control.DeleteString(0), 2);
    EXPECT_EQ(control.FindStringExact(-1, L"foot"), 1);
    control.SetItemData(1, 9);
    EXPECT_EQ(control.GetItemData(1), 9u);
    control.ResetContent();
    EXPECT_EQ(control.GetCount(), 0);
}

TEST_F(ComboBoxesToChoose, SelectByProgramWithoutANotification) {
    EXPECT_EQ(control.GetCurSel(), CB_ERR);
    EXPECT_EQ(control.SetCurSel(1), 1);
    EXPECT_EQ(control.GetCurSel(), 1);
    EXPECT_EQ(control.SelectString(-1, L"metre"), 0);
    EXPECT_TRUE(window.commands.empty());
}

TEST_F(ComboBoxesToChoose, HaveNoSelectionBeyondTheirItems) {
    EXPECT_EQ(control.SetCurSel(2), CB_ERR);
    EXPECT_EQ(control.GetCurSel(), CB_ERR);
}

TEST_F(ComboBoxesToChoose, LoseTheSelectionOnRequest) {
    control.SetCurSel(0);
    control.SetCurSel(-1);
    EXPECT_EQ(control.GetCurSel(), CB_ERR);
}

TEST_F(ComboBoxesToChoose, DropDown) {
    EXPECT_FALSE(control.GetDroppedState());
    control.ShowDropDown();
    EXPECT_TRUE(control.GetDroppedState());
    control.ShowDropDown(FALSE);
    EXPECT_FALSE(control.GetDroppedState());
    control.SetDroppedWidth(300);
    EXPECT_EQ(control.GetDroppedWidth(), 300);
}

TEST_F(ComboBoxes, WithAnEditSelectTheirText) {
    ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, place, &window, id));
    control.SetWindowText(L"12.5");
    EXPECT_TRUE(control.SetEditSel(1, 3));
    EXPECT_EQ(control.GetEditSel(), static_cast<DWORD>(MAKELONG(1, 3)));
    EXPECT_TRUE(control.SetEditSel(0, -1));
    EXPECT_EQ(control.GetEditSel(), static_cast<DWORD>(MAKELONG(0, 4)));
}

TEST_F(ScrollBars, HaveARangeAndAPosition) {
    ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE | SBS_HORZ, place, &window, id));
    control.SetScrollRange(10, 60);
    int lowest = 0;
    int highest = 0;
    control.GetScrollRange(&lowest, &highest);
    EXPECT_EQ(lowest, 10);
    EXPECT_EQ(highest, 60);
    EXPECT_EQ(control.SetScrollPos(25), 10);
    EXPECT_EQ(control.GetScrollPos(), 25);
}

TEST_F(ScrollBars, StopOnePageBeforeTheirEnd) {
    ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE | SBS_HORZ, place, &window, id));
    SCROLLINFO info = {};
    info.fMask = SIF_ALL;
    info.nMax = 99;
    info.nPage = 10;
    control.SetScrollInfo(&info);
    EXPECT_EQ(control.GetScrollLimit(), 90);
    SCROLLINFO read = {};
    EXPECT_TRUE(control.GetScrollInfo(&read));
    EXPECT_EQ(read.nMax, 99);
    EXPECT_EQ(read.nPage, 10u);
}

} // namespace
