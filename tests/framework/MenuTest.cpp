// Menus.
#include "GdiTestResource.h"

#include <afxwin.h>

#include <kit/kit.h>

namespace {

TEST(Menus, ComeFromTheResources) {
    CMenu bar;
    EXPECT_FALSE(bar.LoadMenu(IDM_NO_SUCH));
    ASSERT_TRUE(bar.LoadMenu(IDM_EDIT));
    EXPECT_EQ(bar.GetMenuItemCount(), 2u);
    CMenu* edit = bar.GetSubMenu(0);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(edit->GetMenuItemCount(), 4u);
    EXPECT_EQ(edit->GetMenuItemID(0), static_cast<UINT>(ID_CUT));
    EXPECT_EQ(edit->GetMenuItemID(2), 0u) << "a separator";
    EXPECT_EQ(bar.GetMenuItemID(0), static_cast<UINT>(-1)) << "a pop-up menu";
    EXPECT_EQ(bar.GetSubMenu(1), nullptr);
}

TEST(Menus, ReadTheirTexts) {
    CMenu bar;
    ASSERT_TRUE(bar.LoadMenu(IDM_EDIT));
    CString text(L"before");
    EXPECT_EQ(bar.GetMenuString(ID_CUT, text, MF_BYCOMMAND), 11);
    EXPECT_STREQ(text, L"Cu&t\tCtrl+X");
    EXPECT_EQ(bar.GetMenuString(0, text, MF_BYPOSITION), 5);
    EXPECT_STREQ(text, L"&Edit");
}

TEST(Menus, EnableAndCheckTheirItems) {
    CMenu bar;
    ASSERT_TRUE(bar.LoadMenu(IDM_EDIT));
    EXPECT_EQ(bar.EnableMenuItem(ID_PASTE, MF_ENABLED), static_cast<UINT>(MF_GRAYED));
    EXPECT_EQ(bar.GetMenuState(ID_PASTE, MF_BYCOMMAND) & MF_GRAYED, 0u);
    EXPECT_EQ(bar.CheckMenuItem(ID_GRID, MF_UNCHECKED), static_cast<UINT>(MF_CHECKED));
    EXPECT_EQ(bar.GetMenuState(ID_GRID, MF_BYCOMMAND) & MF_CHECKED, 0u);
    EXPECT_EQ(bar.CheckMenuItem(9999, MF_CHECKED), static_cast<UINT>(-1));
}

TEST(Menus, AreBuiltItemByItem) {
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, 1, L"One"));
    EXPECT_TRUE(menu.AppendMenu(MF_SEPARATOR));
    EXPECT_TRUE(menu.InsertMenu(1, MF_BYPOSITION | MF_STRING, 2, L"Two"));
    EXPECT_EQ(menu.GetMenuItemCount(), 3u);
    EXPECT_EQ(menu.GetMenuItemID(1), 2u);
    EXPECT_TRUE(menu.ModifyMenu(2, MF_BYCOMMAND | MF_STRING, 2, L"Zwei"));
    CString text;
    menu.GetMenuString(2, text, MF_BYCOMMAND);
    EXPECT_STREQ(text, L"Zwei");
    EXPECT_TRUE(menu.SetDefaultItem(2));
    EXPECT_EQ(menu.GetDefaultItem(0), 2u);
    EXPECT_TRUE(menu.RemoveMenu(0, MF_BYPOSITION));
    EXPECT_TRUE(menu.DeleteMenu(2, MF_BYCOMMAND));
    EXPECT_EQ(menu.GetMenuItemCount(), 1u);
}

TEST(Menus, OwnTheHandleTheyAreAttachedTo) {
    const HMENU handle = ::CreateMenu();
    {
        CMenu menu;
        EXPECT_EQ(menu.GetSafeHmenu(), nullptr);
        EXPECT_FALSE(menu.DestroyMenu());
        EXPECT_TRUE(menu.Attach(handle));
        EXPECT_EQ(CMenu::FromHandle(handle), &menu);
    }
    EXPECT_FALSE(::IsMenu(handle));
}

TEST(Menus, AreTemporaryForForeignHandlesAndDoNotOwnThem) {
    CMenu menu;
    menu.CreateMenu();
    const HMENU handle = menu.Detach();
    EXPECT_EQ(CMenu::FromHandle(handle)->m_hMenu, handle);
    CMenu::DeleteTempMap();
    EXPECT_TRUE(::IsMenu(handle));
    EXPECT_TRUE(::DestroyMenu(handle));
}

} // namespace
