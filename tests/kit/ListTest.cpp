// A person selects in list views and list boxes with the mouse.
#include "kit/FailuresOf.h"
#include "kit/RawDialog.h"
#include "kit/kit.h"

#include <commctrl.h>

using kit::Dialog;
using kit::Held;
using kit::Script;

namespace {

constexpr int rowList = 201;
constexpr int nameBox = 202;

using Indices = std::vector<int>;

void inDialog(const RawDialog& dialog, const Script::Step& step) {
    Script script;
    script.onDialog([&](Dialog& d) {
        step(d);
        d.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialog.open(); }), IDCANCEL);
}

/// Twenty rows of a code and its meaning; six of them are in sight.
void fillList(HWND dialog) {
    const HWND list = GetDlgItem(dialog, rowList);
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    for (const wchar_t* heading : {L"Code", L"Meaning"}) {
        column.pszText = const_cast<wchar_t*>(heading);
        column.cx = 100;
        ListView_InsertColumn(list, column.pszText[0] == L'C' ? 0 : 1, &column);
    }
    for (int row = 0; row < 20; ++row) {
        std::wstring code = L"C" + std::to_wstring(row);
        std::wstring meaning(row == 3 ? 300 : 5, L'm');
        LVITEMW item = {};
        item.mask = LVIF_TEXT;
        item.iItem = row;
        item.pszText = code.data();
        ListView_InsertItem(list, &item);
        ListView_SetItemText(list, row, 1, meaning.data());
    }
}

RawDialog listDialog() {
    return RawDialog(L"List")
        .control(rowList, WC_LISTVIEWW, L"",
                 WS_BORDER | WS_TABSTOP | LVS_REPORT | LVS_SHOWSELALWAYS, 8)
        .button(IDCANCEL, L"Cancel")
        .onInit(fillList);
}

RawDialog boxDialog(DWORD kind) {
    return RawDialog(L"Box")
        .control(nameBox, L"ListBox", L"", WS_BORDER | WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | kind,
                 4)
        .button(IDCANCEL, L"Cancel")
        .onInit([](HWND dialog) {
            for (int i = 0; i < 12; ++i)
                SendDlgItemMessageW(dialog, nameBox, LB_ADDSTRING, 0,
                                    reinterpret_cast<LPARAM>(std::to_wstring(i).c_str()));
        });
}

} // namespace

TEST(ListView, TellsItsColumnsAndTexts) {
    inDialog(listDialog(), [](Dialog& d) {
        const kit::ListView list = d.list(rowList);
        EXPECT_EQ(list.rows(), 20);
        EXPECT_EQ(list.columns(), 2);
        EXPECT_EQ(list.heading(0), L"Code");
        EXPECT_EQ(list.heading(1), L"Meaning");
        EXPECT_EQ(list.width(0), 100);
        EXPECT_EQ(list.text(19), L"C19");
        EXPECT_EQ(list.text(3, 1), std::wstring(300, L'm'));
        EXPECT_EQ(list.column()[2], L"C2");
        EXPECT_EQ(list.find(L"C7"), 7);
        EXPECT_EQ(list.find(L"none"), -1);
        EXPECT_EQ(list.selected(), Indices{});
    });
}

TEST(ListView, SelectsByClicksWithCtrlAndShift) {
    int changes = 0;
    RawDialog dialog = listDialog();
    dialog.onMessage([&](HWND, UINT message, WPARAM, LPARAM lParam) {
        if (message == WM_NOTIFY) {
            const auto* const change = reinterpret_cast<const NMLISTVIEW*>(lParam);
            if (change->hdr.code == LVN_ITEMCHANGED &&
                ((change->uOldState ^ change->uNewState) & LVIS_SELECTED) != 0)
                ++changes;
        }
        return false;
    });
    inDialog(dialog, [&](Dialog& d) {
        kit::ListView list = d.list(rowList);
        list.click(2);
        EXPECT_EQ(list.selected(), Indices{2});
        EXPECT_EQ(list.focused(), 2);
        EXPECT_EQ(changes, 1);
        EXPECT_EQ(d.focus(), rowList);
        list.click(15, Held::Ctrl);
        EXPECT_EQ(list.selected(), (Indices{2, 15}));
        list.click(2, Held::Ctrl);
        EXPECT_EQ(list.selected(), Indices{15});
        list.click(4);
        list.click(6, Held::Shift);
        EXPECT_EQ(list.selected(), (Indices{4, 5, 6}));
        list.choose({8, 1, 3});
        EXPECT_EQ(list.selected(), (Indices{1, 3, 8}));
        list.choose({});
        EXPECT_EQ(list.selected(), Indices{});
    });
}

TEST(ListView, ChangesTheStateOfARowDirectly) {
    inDialog(listDialog(), [](Dialog& d) {
        kit::ListView list = d.list(rowList);
        list.select(3);
        list.select(5);
        EXPECT_EQ(list.selected(), (Indices{3, 5}));
        list.select(3, false);
        EXPECT_TRUE(list.selected(5));
        EXPECT_FALSE(list.selected(3));
    });
}

TEST(ListView, FailsOnARowThatIsNotThere) {
    const auto failures =
        failuresOf([] { inDialog(listDialog(), [](Dialog& d) { d.list(rowList).click(20); }); });
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(contains(failures[0], "no row 20, but 20 rows"));
}

TEST(ListView, TellsADoubleClick) {
    int doubleClicks = 0;
    RawDialog dialog = listDialog();
    dialog.onMessage([&](HWND, UINT message, WPARAM, LPARAM lParam) {
        if (message == WM_NOTIFY && reinterpret_cast<const NMHDR*>(lParam)->code == NM_DBLCLK)
            ++doubleClicks;
        return false;
    });
    inDialog(dialog, [](Dialog& d) { d.list(rowList).doubleClick(1); });
    EXPECT_EQ(doubleClicks, 1);
}

TEST(ListBox, SelectsOneEntry) {
    int changes = 0;
    RawDialog dialog = boxDialog(0);
    dialog.onCommand([&](HWND, int, int code) { changes += code == LBN_SELCHANGE ? 1 : 0; });
    inDialog(dialog, [&](Dialog& d) {
        kit::ListBox box = d.listBox(nameBox);
        EXPECT_EQ(box.count(), 12);
        EXPECT_EQ(box.text(11), L"11");
        EXPECT_EQ(box.texts()[1], L"1");
        EXPECT_EQ(box.selected(), Indices{});
        box.click(1);
        box.click(10);
        EXPECT_EQ(box.selected(), Indices{10});
        EXPECT_EQ(changes, 2);
    });
}

TEST(ListBox, SelectsSeveralEntriesOfEachKind) {
    for (const DWORD kind : {LBS_MULTIPLESEL, LBS_EXTENDEDSEL}) {
        inDialog(boxDialog(kind), [](Dialog& d) {
            kit::ListBox box = d.listBox(nameBox);
            box.choose({1, 3});
            EXPECT_EQ(box.selected(), (Indices{1, 3}));
            box.choose({9, 2, 0});
            EXPECT_EQ(box.selected(), (Indices{0, 2, 9}));
        });
    }
}

TEST(ListBox, FailsOnAnEntryThatIsNotThere) {
    const auto failures =
        failuresOf([] { inDialog(boxDialog(0), [](Dialog& d) { d.listBox(nameBox).click(-1); }); });
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(contains(failures[0], "no entry -1"));
}
