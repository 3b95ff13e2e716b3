// Menus.
#pragma once

#include "gdi.h"
#include "string.h"

class CWnd;

/// Owns the menu attached to it. A menu that a window or another menu has taken is theirs: Detach
/// it. Flags are those of the Windows functions (MF_BYCOMMAND, MF_BYPOSITION, ...).
class AFXRT_API CMenu : public CObject {
    DECLARE_DYNCREATE(CMenu)

public:
    CMenu();
    ~CMenu() override;

    HMENU m_hMenu;

    /// The attached handle; null also when called on a null pointer.
    HMENU GetSafeHmenu() const;
    operator HMENU() const { return GetSafeHmenu(); }
    BOOL operator==(const CMenu& menu) const { return menu.GetSafeHmenu() == m_hMenu; }
    BOOL operator!=(const CMenu& menu) const { return menu.GetSafeHmenu() != m_hMenu; }
    /// The object attached to the handle, or a temporary one that lives until the thread is idle
    /// and owns nothing. Null for a null handle.
    static CMenu* PASCAL FromHandle(HMENU hMenu);
    static void PASCAL DeleteTempMap();
    /// Takes the handle over. FALSE for a null handle.
    BOOL Attach(HMENU hMenu);
    HMENU Detach();

    BOOL CreateMenu() { return Attach(::CreateMenu()); }
    BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
    /// From the resources of the module that has it, first of the resource chain.
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource);
    BOOL LoadMenuIndirect(const void* lpMenuTemplate);
    BOOL DestroyMenu();

    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = NULL) {
        return ::AppendMenu(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0,
                    LPCTSTR lpszNewItem = NULL) {
        return ::InsertMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0,
                    LPCTSTR lpszNewItem = NULL) {
        return ::ModifyMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE) {
        return ::InsertMenuItem(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    /// Deletes the item and the pop-up menu behind it; RemoveMenu leaves that alive.
    BOOL DeleteMenu(UINT nPosition, UINT nFlags) {
        return ::DeleteMenu(m_hMenu, nPosition, nFlags);
    }
    BOOL RemoveMenu(UINT nPosition, UINT nFlags) {
        return ::RemoveMenu(m_hMenu, nPosition, nFlags);
    }

    /// These return the previous state; -1 when there is no such item.
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck) {
        return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
    }
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable) {
        return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
    }
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags) {
        return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
    }
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE) {
        return ::SetMenuDefaultItem(m_hMenu, uItem, fByPos);
    }
    UINT GetDefaultItem(UINT gmdiFlags, BOOL fByPos = FALSE) {
        return ::GetMenuDefaultItem(m_hMenu, fByPos, gmdiFlags);
    }
    BOOL SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                            const CBitmap* pBmpChecked);

    UINT GetMenuItemCount() const { return static_cast<UINT>(::GetMenuItemCount(m_hMenu)); }
    /// 0 for a separator, -1 for a pop-up menu.
    UINT GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
    UINT GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
    /// These return the length of the text.
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const {
        return ::GetMenuString(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
    }
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE) {
        return ::GetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE) {
        return ::SetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    BOOL GetMenuInfo(LPMENUINFO lpcmi) const { return ::GetMenuInfo(m_hMenu, lpcmi); }
    BOOL SetMenuInfo(LPCMENUINFO lpcmi) { return ::SetMenuInfo(m_hMenu, lpcmi); }
    CMenu* GetSubMenu(int nPos) const { return FromHandle(::GetSubMenu(m_hMenu, nPos)); }
    DWORD GetMenuContextHelpId() const { return ::GetMenuContextHelpId(m_hMenu); }
    BOOL SetMenuContextHelpId(DWORD dwContextHelpId) {
        return ::SetMenuContextHelpId(m_hMenu, dwContextHelpId);
    }

    /// Shows the menu at a screen position; its command goes to pWnd, or is the result with
    /// TPM_RETURNCMD.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = 0);
    BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm);
};
