// The other common controls, in a real window.
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

class SpinButtons : public With<CSpinButtonCtrl> {
protected:
    CEdit edit;
    void SetUp() override {
        ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, place, &window, id));
        ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE | UDS_SETBUDDYINT | UDS_ARROWKEYS, place,
                                   &window, id + 1));
        control.SetBuddy(&edit);
    }
    CString Text() const {
        CString text;
        edit.GetWindowText(text);
        return text;
    }
};

TEST_F(SpinButtons, CountDownwardsUntilTheirRangeIsSet) {
    int lower = 0;
    int upper = 0;
    control.GetRange32(lower, upper);
    EXPECT_EQ(lower, 100);
    EXPECT_EQ(upper, 0);
}

TEST_F(SpinButtons, HaveARange) {
    control.SetRange(-5, 10);
    int lower = 0;
    int upper = 0;
    control.GetRange(lower, upper);
    EXPECT_EQ(lower, -5);
    EXPECT_EQ(upper, 10);
    EXPECT_EQ(control.GetRange(), static_cast<DWORD>(MAKELONG(10, -5)));
    control.SetRange32(1, 100000);
    control.GetRange32(lower, upper);
    EXPECT_EQ(lower, 1);
    EXPECT_EQ(upper, 100000);
}

TEST_F(SpinButtons, WriteTheirPositionIntoTheirBuddy) {
    EXPECT_EQ(control.GetBuddy(), &edit);
    control.SetRange32(1, 10);
    control.SetPos(4);
    EXPECT_STREQ(Text(), L"4");
    EXPECT_EQ(control.SetPos(5), 4) << "the position before";
    EXPECT_EQ(LOWORD(control.GetPos()), 5);
    control.SetPos32(99);
    EXPECT_EQ(control.GetPos32(), 10) << "kept in the range";
}

TEST_F(SpinButtons, ReadTheirPositionFromTheirBuddy) {
    control.SetRange32(1, 10);
    edit.SetWindowText(L"7");
    BOOL failed = TRUE;
    EXPECT_EQ(control.GetPos32(&failed), 7);
    EXPECT_FALSE(failed);
    edit.SetWindowText(L"seven");
    control.GetPos32(&failed);
    EXPECT_TRUE(failed);
}

TEST_F(SpinButtons, CountInTheirBase) {
    EXPECT_EQ(control.GetBase(), 10u);
    EXPECT_EQ(control.SetBase(16), 10);
    control.SetRange32(0, 100);
    control.SetPos(31);
    EXPECT_STREQ(Text(), L"0x001F");
}

using Sliders = With<CSliderCtrl>;

TEST_F(Sliders, HaveARangeAndAPosition) {
    ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE | TBS_AUTOTICKS | TBS_ENABLESELRANGE, place,
                               &window, id));
    control.SetRange(10, 50);
    int lowest = 0;
    int highest = 0;
    control.GetRange(lowest, highest);
    EXPECT_EQ(lowest, 10);
    EXPECT_EQ(highest, 50);
    control.SetPos(30);
    EXPECT_EQ(control.GetPos(), 30);
    control.SetPos(99);
    EXPECT_EQ(control.GetPos(), 50) << "kept in the range";
    control.SetTicFreq(10);
    EXPECT_EQ(control.GetNumTics(), 5u);
    control.SetPageSize(7);
    EXPECT_EQ(control.GetPageSize(), 7);
    EXPECT_EQ(control.SetLineSize(2), 1);
    control.SetSelection(20, 40);
    control.GetSelection(lowest, highest);
    EXPECT_EQ(lowest, 20);
    EXPECT_EQ(highest, 40);
}

using ProgressBars = With<CProgressCtrl>;

TEST_F(ProgressBars, Advance) {
    ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE, place, &window, id));
    int lower = -1;
    int upper = -1;
    control.GetRange(lower, upper);
    EXPECT_EQ(lower, 0);
    EXPECT_EQ(upper, 100);
    control.SetRange32(0, 100000);
    control.GetRange(lower, upper);
    EXPECT_EQ(upper, 100000);
    EXPECT_EQ(control.SetPos(40), 0);
    EXPECT_EQ(control.OffsetPos(5), 40);
    EXPECT_EQ(control.SetStep(20), 10);
    EXPECT_EQ(control.StepIt(), 45);
    EXPECT_EQ(control.GetPos(), 65);
}

using ToolTips = With<CToolTipCtrl>;

TEST_F(ToolTips, BelongToWindows) {
    CButton button;
    ASSERT_TRUE(button.Create(L"OK", WS_CHILD | WS_VISIBLE, place, &window, id));
    ASSERT_TRUE(control.Create(&window));
    EXPECT_TRUE(control.AddTool(&button, L"Takes the settings"));
    EXPECT_EQ(control.GetToolCount(), 1);
    CString text;
    control.GetText(text, &button);
    EXPECT_STREQ(text, L"Takes the settings");
    control.UpdateTipText(L"Closes", &button);
    control.GetText(text, &button);
    EXPECT_STREQ(text, L"Closes");
    control.DelTool(&button);
    EXPECT_EQ(control.GetToolCount(), 0);
}

TEST_F(ToolTips, BelongToRectangles) {
    ASSERT_TRUE(control.Create(&window));
    EXPECT_TRUE(control.AddTool(&window, L"Curve", CRect(0, 0, 10, 10), 5));
    CString text;
    control.GetText(text, &window, 5);
    EXPECT_STREQ(text, L"Curve");
    control.SetMaxTipWidth(200);
    EXPECT_EQ(control.GetMaxTipWidth(), 200);
    control.SetDelayTime(TTDT_INITIAL, 250);
    EXPECT_EQ(control.GetDelayTime(TTDT_INITIAL), 250);
}

class TabCtrl : public With<CTabCtrl> {
protected:
    void SetUp() override {
        ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE, place, &window, id));
        EXPECT_EQ(control.InsertItem(0, L"Data"), 0);
        EXPECT_EQ(control.InsertItem(1, L"Legend"), 1);
    }
};

TEST_F(TabCtrl, HasTabs) {
    EXPECT_EQ(control.GetItemCount(), 2);
    wchar_t text[16] = {};
    TCITEM item = {};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = 16;
    ASSERT_TRUE(control.GetItem(1, &item));
    EXPECT_STREQ(text, L"Legend");
    EXPECT_TRUE(control.DeleteItem(0));
    EXPECT_EQ(control.GetItemCount(), 1);
    EXPECT_TRUE(control.DeleteAllItems());
    EXPECT_EQ(control.GetItemCount(), 0);
}

TEST_F(TabCtrl, SelectsByProgramWithoutANotification) {
    window.notifications.clear();
    EXPECT_EQ(control.GetCurSel(), 0);
    EXPECT_EQ(control.SetCurSel(1), 0);
    EXPECT_EQ(control.GetCurSel(), 1);
    EXPECT_EQ(window.Notified(TCN_SELCHANGE), 0);
}

TEST_F(TabCtrl, LeavesAnAreaForThePage) {
    CRect area(0, 0, 200, 100);
    control.AdjustRect(FALSE, &area);
    CRect tab;
    ASSERT_TRUE(control.GetItemRect(0, &tab));
    EXPECT_GE(area.top, tab.bottom);
    control.AdjustRect(TRUE, &area);
    EXPECT_TRUE(area == CRect(0, 0, 200, 100));
    EXPECT_EQ(control.GetRowCount(), 1);
    TCHITTESTINFO test = {};
    test.pt = tab.CenterPoint();
    EXPECT_EQ(control.HitTest(&test), 0);
}

TEST_F(TabCtrl, ShowsImages) {
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 16, 1, RGB(255, 0, 255)));
    EXPECT_EQ(control.SetImageList(&images), nullptr);
    EXPECT_EQ(control.GetImageList(), &images);
    EXPECT_EQ(control.InsertItem(2, L"Sheet", 1), 2);
}

class TreeCtrl : public With<CTreeCtrl> {
protected:
    HTREEITEM profiles = nullptr;
    HTREEITEM legend = nullptr;
    HTREEITEM sheet = nullptr;
    void SetUp() override {
        ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_LINESATROOT, place,
                                   &window, id));
        profiles = control.InsertItem(L"Profiles");
        legend = control.InsertItem(L"Legend", profiles);
        sheet = control.InsertItem(L"Sheet", 0, 1, profiles);
        window.notifications.clear();
    }
};

TEST_F(TreeCtrl, HasItemsBelowItems) {
    EXPECT_EQ(control.GetCount(), 3u);
    EXPECT_EQ(control.GetRootItem(), profiles);
    EXPECT_EQ(control.GetChildItem(profiles), legend);
    EXPECT_EQ(control.GetNextSiblingItem(legend), sheet);
    EXPECT_EQ(control.GetPrevSiblingItem(sheet), legend);
    EXPECT_EQ(control.GetNextSiblingItem(sheet), nullptr);
    EXPECT_EQ(control.GetParentItem(sheet), profiles);
    EXPECT_TRUE(control.ItemHasChildren(profiles));
    EXPECT_FALSE(control.ItemHasChildren(sheet));
}

TEST_F(TreeCtrl, NamesItsItems) {
    EXPECT_STREQ(control.GetItemText(legend), L"Legend");
    const CString text(L'x', 250);
    EXPECT_TRUE(control.SetItemText(legend, text));
    EXPECT_TRUE(control.GetItemText(legend) == text);
    EXPECT_TRUE(control.SetItemData(legend, 42));
    EXPECT_EQ(control.GetItemData(legend), 42u);
    int image = -1;
    int selectedImage = -1;
    EXPECT_TRUE(control.GetItemImage(sheet, image, selectedImage));
    EXPECT_EQ(image, 0);
    EXPECT_EQ(selectedImage, 1);
}

TEST_F(TreeCtrl, SelectsAndTells) {
    EXPECT_EQ(control.GetSelectedItem(), nullptr);
    EXPECT_TRUE(control.SelectItem(sheet));
    EXPECT_EQ(control.GetSelectedItem(), sheet);
    EXPECT_EQ(window.Notified(TVN_SELCHANGED), 1);
    EXPECT_TRUE(control.GetItemState(sheet, TVIS_SELECTED) & TVIS_SELECTED);
}

TEST_F(TreeCtrl, Expands) {
    EXPECT_TRUE(control.Expand(profiles, TVE_EXPAND));
    EXPECT_TRUE(control.GetItemState(profiles, TVIS_EXPANDED) & TVIS_EXPANDED);
    CRect row;
    ASSERT_TRUE(control.GetItemRect(legend, &row, TRUE));
    EXPECT_EQ(control.HitTest(row.CenterPoint()), legend);
    EXPECT_EQ(control.GetFirstVisibleItem(), profiles);
    EXPECT_EQ(control.GetNextVisibleItem(profiles), legend);
}

TEST_F(TreeCtrl, ExpandsWhatHidesAnItem) {
    EXPECT_FALSE(control.GetItemState(profiles, TVIS_EXPANDED) & TVIS_EXPANDED);
    control.EnsureVisible(sheet);
    EXPECT_TRUE(control.GetItemState(profiles, TVIS_EXPANDED) & TVIS_EXPANDED);
}

TEST_F(TreeCtrl, HasAnImageForExpandedItems) {
    EXPECT_TRUE(control.SetItemExpandedImageIndex(profiles, 3));
    EXPECT_EQ(control.GetItemExpandedImageIndex(profiles), 3);
}

TEST_F(TreeCtrl, DeletesAnItemWithWhatIsBelow) {
    EXPECT_TRUE(control.DeleteItem(profiles));
    EXPECT_EQ(control.GetCount(), 0u);
    control.InsertItem(L"again");
    EXPECT_TRUE(control.DeleteAllItems());
    EXPECT_EQ(control.GetCount(), 0u);
}

using Headers = With<CHeaderCtrl>;

TEST_F(Headers, HaveItems) {
    ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE, place, &window, id));
    wchar_t text[] = L"Code";
    HDITEM item = {};
    item.mask = HDI_TEXT | HDI_WIDTH;
    item.pszText = text;
    item.cxy = 60;
    EXPECT_EQ(control.InsertItem(0, &item), 0);
    EXPECT_EQ(control.InsertItem(1, &item), 1);
    EXPECT_EQ(control.GetItemCount(), 2);
    CRect heading;
    ASSERT_TRUE(control.GetItemRect(1, &heading));
    EXPECT_EQ(heading.left, 60);
    EXPECT_EQ(control.OrderToIndex(1), 1);
    EXPECT_TRUE(control.DeleteItem(0));
    EXPECT_EQ(control.GetItemCount(), 1);
}

} // namespace
