// The list view, in a real window: what the dialogs rely on, and what it tells its parent.
#include "ControlWindow.h"
#include "GdiTestResource.h"

#include <kit/kit.h>

namespace {

constexpr UINT id = 7;
const CRect place(10, 10, 310, 210);

class ListCtrl : public testing::Test {
protected:
    ControlWindow window;
    CListCtrl list;

    void SetUp() override {
        ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS |
                                    LVS_SHAREIMAGELISTS,
                                place, &window, id));
        list.InsertColumn(0, L"Code", LVCFMT_LEFT, 80);
        list.InsertColumn(1, L"Name", LVCFMT_LEFT, 120, 1);
    }
    void Fill(int count) {
        for (int i = 0; i < count; ++i) {
            CString code;
            code.Format(L"C%d", i);
            list.InsertItem(i, code);
        }
        window.notifications.clear();
    }
    std::vector<int> Selected() const {
        std::vector<int> items;
        for (int i = list.GetNextItem(-1, LVNI_SELECTED); i >= 0;
             i = list.GetNextItem(i, LVNI_SELECTED))
            items.push_back(i);
        return items;
    }
    void Select(int item) { list.SetItemState(item, LVIS_SELECTED, LVIS_SELECTED); }
};

TEST_F(ListCtrl, HasColumns) {
    EXPECT_EQ(list.GetHeaderCtrl()->GetItemCount(), 2);
    EXPECT_EQ(list.GetColumnWidth(0), 80);
    EXPECT_TRUE(list.SetColumnWidth(1, 150));
    EXPECT_EQ(list.GetColumnWidth(1), 150);

    wchar_t text[16] = {};
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT | LVCF_SUBITEM;
    column.pszText = text;
    column.cchTextMax = 16;
    ASSERT_TRUE(list.GetColumn(1, &column));
    EXPECT_STREQ(text, L"Name");
    EXPECT_EQ(column.iSubItem, 1);
    EXPECT_TRUE(list.DeleteColumn(1));
    EXPECT_EQ(list.GetHeaderCtrl()->GetItemCount(), 1);
}

TEST_F(ListCtrl, ReordersItsColumns) {
    int order[] = {1, 0};
    EXPECT_TRUE(list.SetColumnOrderArray(2, order));
    int read[2] = {};
    EXPECT_TRUE(list.GetColumnOrderArray(read));
    EXPECT_EQ(read[0], 1);
    EXPECT_EQ(read[1], 0);
}

TEST_F(ListCtrl, KeepsItsItemsInOrder) {
    EXPECT_EQ(list.InsertItem(0, L"second"), 0);
    EXPECT_EQ(list.InsertItem(0, L"first"), 0);
    EXPECT_EQ(list.InsertItem(99, L"third"), 2) << "beyond the end: last";
    EXPECT_TRUE(list.SetItemText(0, 1, L"a name"));
    EXPECT_EQ(list.GetItemCount(), 3);
    EXPECT_STREQ(list.GetItemText(0, 0), L"first");
    EXPECT_STREQ(list.GetItemText(0, 1), L"a name");
    EXPECT_STREQ(list.GetItemText(1, 1), L"");
    EXPECT_TRUE(list.DeleteItem(0));
    EXPECT_STREQ(list.GetItemText(0, 0), L"second");
    EXPECT_TRUE(list.DeleteAllItems());
    EXPECT_EQ(list.GetItemCount(), 0);
}

TEST_F(ListCtrl, ReturnsALongTextWhole) {
    const CString text(L'x', 700);
    list.InsertItem(0, text);
    EXPECT_TRUE(list.GetItemText(0, 0) == text);
    wchar_t buffer[8];
    EXPECT_EQ(list.GetItemText(0, 0, buffer, 8), 7);
    EXPECT_STREQ(buffer, L"xxxxxxx");
}

TEST_F(ListCtrl, TakesAnItemWithAllItHas) {
    const int item = list.InsertItem(LVIF_TEXT | LVIF_STATE | LVIF_IMAGE | LVIF_PARAM, 0, L"eje",
                                     INDEXTOSTATEIMAGEMASK(2), LVIS_STATEIMAGEMASK, 3, 42);
    EXPECT_EQ(item, 0);
    LVITEM read = {};
    read.mask = LVIF_IMAGE;
    EXPECT_TRUE(list.GetItem(&read));
    EXPECT_EQ(read.iImage, 3);
    EXPECT_EQ(list.GetItemData(0), 42u);
    EXPECT_TRUE(list.SetItemData(0, 43));
    EXPECT_EQ(list.GetItemData(0), 43u);
    EXPECT_EQ(list.GetItemState(0, LVIS_STATEIMAGEMASK), INDEXTOSTATEIMAGEMASK(2));
}

TEST_F(ListCtrl, DoesNotTellOfAnItemInsertedWithAStateImage) {
    list.InsertItem(LVIF_TEXT | LVIF_STATE, 0, L"eje", INDEXTOSTATEIMAGEMASK(1),
                    LVIS_STATEIMAGEMASK, 0, 0);
    EXPECT_EQ(window.Notified(LVN_ITEMCHANGED), 0);
}

TEST_F(ListCtrl, SelectsAndTells) {
    Fill(4);
    Select(1);
    Select(3);
    EXPECT_EQ(Selected(), (std::vector{1, 3}));
    EXPECT_EQ(list.GetSelectedCount(), 2u);
    EXPECT_EQ(window.Notified(LVN_ITEMCHANGED), 2);
}

TEST_F(ListCtrl, IsSilentOnSelectingASelectedRow) {
    Fill(2);
    Select(0);
    window.notifications.clear();
    Select(0);
    EXPECT_EQ(window.Notified(LVN_ITEMCHANGED), 0);
}

TEST_F(ListCtrl, DeselectsByTheMaskedBitsOfTheState) {
    Fill(2);
    Select(0);
    EXPECT_TRUE(list.SetItemState(0, ~static_cast<UINT>(LVIS_SELECTED), LVIS_SELECTED));
    EXPECT_EQ(Selected(), std::vector<int>());
    EXPECT_EQ(list.GetItemState(0, LVIS_FOCUSED | LVIS_CUT), 0u) << "no other bit is touched";
}

TEST_F(ListCtrl, SelectsAllItemsAtOnce) {
    Fill(3);
    EXPECT_TRUE(list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_EQ(list.GetSelectedCount(), 3u);
}

TEST_F(ListCtrl, WalksThroughTheSelectedItems) {
    Fill(5);
    EXPECT_EQ(list.GetFirstSelectedItemPosition(), nullptr);
    Select(0);
    Select(4);
    POSITION position = list.GetFirstSelectedItemPosition();
    ASSERT_NE(position, nullptr);
    EXPECT_EQ(list.GetNextSelectedItem(position), 0);
    ASSERT_NE(position, nullptr);
    EXPECT_EQ(list.GetNextSelectedItem(position), 4);
    EXPECT_EQ(position, nullptr);
}

TEST_F(ListCtrl, TellsOfTheDeselectionWhenASelectedRowGoes) {
    Fill(3);
    Select(1);
    window.notifications.clear();
    list.DeleteItem(1);
    EXPECT_EQ(window.Notified(LVN_ITEMCHANGED), 1);
    EXPECT_EQ(window.Notified(LVN_DELETEITEM), 1);
    EXPECT_EQ(list.GetSelectedCount(), 0u);
}

TEST_F(ListCtrl, DoesNotTellOfDeselectionsWhenAllRowsGo) {
    Fill(3);
    Select(1);
    window.notifications.clear();
    list.DeleteAllItems();
    EXPECT_EQ(window.Notified(LVN_ITEMCHANGED), 0);
}

TEST_F(ListCtrl, KeepsTheSelectionOnTheItemWhenOthersGo) {
    Fill(4);
    Select(2);
    list.DeleteItem(0);
    EXPECT_EQ(Selected(), (std::vector{1}));
}

TEST_F(ListCtrl, SetsItsExtendedStyleAsAWhole) {
    constexpr DWORD gridAndFullRow = LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT;
    EXPECT_EQ(gridAndFullRow, 33u);
    EXPECT_EQ(list.SetExtendedStyle(gridAndFullRow), 0u);
    EXPECT_EQ(list.GetExtendedStyle(), gridAndFullRow);
    EXPECT_EQ(list.SetExtendedStyle(LVS_EX_CHECKBOXES), gridAndFullRow);
    EXPECT_EQ(list.GetExtendedStyle(), static_cast<DWORD>(LVS_EX_CHECKBOXES));
}

TEST_F(ListCtrl, HasCheckBoxes) {
    list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    Fill(2);
    EXPECT_FALSE(list.GetCheck(0));
    EXPECT_TRUE(list.SetCheck(0));
    EXPECT_TRUE(list.GetCheck(0));
    EXPECT_FALSE(list.GetCheck(1));
    EXPECT_TRUE(list.SetCheck(0, FALSE));
    EXPECT_FALSE(list.GetCheck(0));
}

TEST_F(ListCtrl, ShowsTheImagesOfItsList) {
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 16, 1, RGB(255, 0, 255)));
    EXPECT_EQ(list.SetImageList(&images, LVSIL_SMALL), nullptr);
    EXPECT_EQ(list.GetImageList(LVSIL_SMALL), &images);
    EXPECT_EQ(list.InsertItem(0, L"eje", 1), 0);
    EXPECT_EQ(list.SetImageList(nullptr, LVSIL_SMALL), &images);
}

TEST(ListCtrlImages, StayTheirOwnersWithTheStyleForIt) {
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 16, 1, RGB(255, 0, 255)));
    {
        ControlWindow window;
        CListCtrl list;
        ASSERT_TRUE(list.Create(WS_CHILD | LVS_REPORT | LVS_SHAREIMAGELISTS, place, &window, id));
        list.SetImageList(&images, LVSIL_SMALL);
    }
    EXPECT_EQ(images.GetImageCount(), 2) << "the list view is gone, the images are not";
}

TEST_F(ListCtrl, FindsAndSorts) {
    for (const wchar_t* text : {L"b", L"c", L"a"})
        list.SetItemData(list.InsertItem(list.GetItemCount(), text), text[0]);
    LVFINDINFO wanted = {};
    wanted.flags = LVFI_STRING;
    wanted.psz = L"c";
    EXPECT_EQ(list.FindItem(&wanted), 1);
    EXPECT_EQ(list.FindItem(&wanted, 1), -1) << "after the item itself";

    const PFNLVCOMPARE byData = [](LPARAM a, LPARAM b, LPARAM sign) -> int {
        return static_cast<int>((a - b) * sign);
    };
    EXPECT_TRUE(list.SortItems(byData, static_cast<DWORD_PTR>(-1)));
    EXPECT_STREQ(list.GetItemText(0, 0), L"c");
    EXPECT_STREQ(list.GetItemText(2, 0), L"a");
}

TEST_F(ListCtrl, BringsAnItemIntoView) {
    Fill(100);
    EXPECT_EQ(list.GetTopIndex(), 0);
    EXPECT_TRUE(list.EnsureVisible(99, FALSE));
    EXPECT_GT(list.GetTopIndex(), 0);
    EXPECT_LT(list.GetCountPerPage(), 100);
}

TEST_F(ListCtrl, KnowsWhereAnItemIs) {
    Fill(3);
    CRect row;
    ASSERT_TRUE(list.GetItemRect(1, &row, LVIR_LABEL));
    UINT flags = 0;
    EXPECT_EQ(list.HitTest(row.TopLeft() + CSize(4, 4), &flags), 1);
    EXPECT_TRUE(flags & LVHT_ONITEM);
    EXPECT_EQ(list.HitTest(CPoint(5, 195)), -1);
    CRect cell;
    ASSERT_TRUE(list.GetSubItemRect(1, 1, LVIR_BOUNDS, cell));
    EXPECT_EQ(cell.left, 80);
    EXPECT_EQ(cell.Width(), 120);
    LVHITTESTINFO inCell = {};
    inCell.pt = cell.CenterPoint();
    EXPECT_EQ(list.SubItemHitTest(&inCell), 1);
    EXPECT_EQ(inCell.iSubItem, 1);
}

TEST_F(ListCtrl, TellsOfKeysAndDoubleClicks) {
    Fill(1);
    list.SetFocus();
    list.SendMessage(WM_KEYDOWN, VK_DELETE, 0);
    EXPECT_EQ(window.Notified(LVN_KEYDOWN), 1);
    CRect row;
    list.GetItemRect(0, &row, LVIR_LABEL);
    list.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(row.left + 4, row.top + 4));
    EXPECT_EQ(window.Notified(NM_DBLCLK), 1);
}

TEST_F(ListCtrl, HasColours) {
    EXPECT_TRUE(list.SetTextColor(RGB(1, 2, 3)));
    EXPECT_EQ(list.GetTextColor(), static_cast<COLORREF>(RGB(1, 2, 3)));
    EXPECT_TRUE(list.SetBkColor(RGB(4, 5, 6)));
    EXPECT_EQ(list.GetBkColor(), static_cast<COLORREF>(RGB(4, 5, 6)));
    EXPECT_TRUE(list.SetTextBkColor(CLR_NONE));
    EXPECT_EQ(list.GetTextBkColor(), CLR_NONE);
}

TEST_F(ListCtrl, RemembersWhereASelectionStarted) {
    Fill(3);
    list.SetSelectionMark(2);
    EXPECT_EQ(list.GetSelectionMark(), 2);
}

} // namespace
