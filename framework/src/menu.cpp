#include <afxrt/menu.h>

#include <afxrt/handle_map.h>
#include <afxrt/wnd.h>

IMPLEMENT_DYNCREATE(CMenu, CObject)

namespace afx_internal {

template <>
struct HandleTraits<CMenu> : HandleMember<CMenu, &CMenu::m_hMenu> {};

} // namespace afx_internal

namespace {

afx_internal::HandleMap<CMenu, HMENU>& Menus() {
    return afx_internal::MapOfThread<CMenu, HMENU>();
}

// The system takes the handle of a bitmap in the place of the item's text.
LPCTSTR AsItem(const CBitmap* bitmap) {
    return reinterpret_cast<LPCTSTR>(bitmap->GetSafeHandle());
}

} // namespace

CMenu::CMenu() : m_hMenu(nullptr) {}

CMenu::~CMenu() {
    DestroyMenu();
}

HMENU CMenu::GetSafeHmenu() const {
    return afx_internal::IsNull(this) ? nullptr : m_hMenu;
}

CMenu* PASCAL CMenu::FromHandle(HMENU hMenu) {
    return Menus().FromHandle(hMenu);
}

void PASCAL CMenu::DeleteTempMap() {
    Menus().DeleteTemporaries(0);
}

BOOL CMenu::Attach(HMENU hMenu) {
    if (!hMenu)
        return FALSE;
    m_hMenu = hMenu;
    Menus().SetPermanent(hMenu, this);
    return TRUE;
}

HMENU CMenu::Detach() {
    const HMENU handle = m_hMenu;
    m_hMenu = nullptr;
    if (handle && Menus().LookupPermanent(handle) == this)
        Menus().Remove(handle);
    return handle;
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName) {
    return Attach(::LoadMenu(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

BOOL CMenu::LoadMenu(UINT nIDResource) {
    return LoadMenu(MAKEINTRESOURCE(nIDResource));
}

BOOL CMenu::LoadMenuIndirect(const void* lpMenuTemplate) {
    return Attach(::LoadMenuIndirect(lpMenuTemplate));
}

BOOL CMenu::DestroyMenu() {
    const HMENU handle = Detach();
    return handle ? ::DestroyMenu(handle) : FALSE;
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return AppendMenu(nFlags | MF_BITMAP, nIDNewItem, AsItem(pBmp));
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return InsertMenu(nPosition, nFlags | MF_BITMAP, nIDNewItem, AsItem(pBmp));
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ModifyMenu(nPosition, nFlags | MF_BITMAP, nIDNewItem, AsItem(pBmp));
}

BOOL CMenu::SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                               const CBitmap* pBmpChecked) {
    return ::SetMenuItemBitmaps(m_hMenu, nPosition, nFlags,
                                static_cast<HBITMAP>(pBmpUnchecked->GetSafeHandle()),
                                static_cast<HBITMAP>(pBmpChecked->GetSafeHandle()));
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const {
    const int length = ::GetMenuString(m_hMenu, nIDItem, nullptr, 0, nFlags);
    ::GetMenuString(m_hMenu, nIDItem, rString.GetBuffer(length), length + 1, nFlags);
    rString.ReleaseBuffer();
    return rString.GetLength();
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd->GetSafeHwnd(), lpRect);
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm) {
    return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, pWnd->GetSafeHwnd(), lptpm);
}
