#include <afxrt/imagelist.h>

#include <afxrt/device_context.h>
#include <afxrt/handle_map.h>
#include <afxrt/wnd.h>

IMPLEMENT_DYNCREATE(CImageList, CObject)

namespace afx_internal {

template <>
struct HandleTraits<CImageList> : HandleMember<CImageList, &CImageList::m_hImageList> {};

} // namespace afx_internal

namespace {

afx_internal::HandleMap<CImageList, HIMAGELIST>& ImageLists() {
    return afx_internal::MapOfThread<CImageList, HIMAGELIST>();
}

HBITMAP HandleOf(const CBitmap* bitmap) {
    return static_cast<HBITMAP>(bitmap->GetSafeHandle());
}

} // namespace

CImageList::CImageList() : m_hImageList(nullptr) {}

CImageList::~CImageList() {
    DeleteImageList();
}

HIMAGELIST CImageList::GetSafeHandle() const {
    return afx_internal::IsNull(this) ? nullptr : m_hImageList;
}

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST hImageList) {
    return ImageLists().FromHandle(hImageList);
}

CImageList* PASCAL CImageList::FromHandlePermanent(HIMAGELIST hImageList) {
    return ImageLists().LookupPermanent(hImageList);
}

void PASCAL CImageList::DeleteTempMap() {
    ImageLists().DeleteTemporaries(0);
}

BOOL CImageList::Attach(HIMAGELIST hImageList) {
    if (!hImageList)
        return FALSE;
    m_hImageList = hImageList;
    ImageLists().SetPermanent(hImageList, this);
    return TRUE;
}

HIMAGELIST CImageList::Detach() {
    const HIMAGELIST handle = m_hImageList;
    m_hImageList = nullptr;
    if (handle && ImageLists().LookupPermanent(handle) == this)
        ImageLists().Remove(handle);
    return handle;
}

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow) {
    return Attach(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask) {
    return Create(MAKEINTRESOURCE(nBitmapID), cx, nGrow, crMask);
}

BOOL CImageList::Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask) {
    const HINSTANCE module = AfxFindResourceHandle(lpszBitmapID, RT_BITMAP);
    return Attach(::ImageList_LoadBitmap(module, lpszBitmapID, cx, nGrow, crMask));
}

BOOL CImageList::Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2,
                        int dx, int dy) {
    return Attach(::ImageList_Merge(imagelist1, nImage1, imagelist2, nImage2, dx, dy));
}

BOOL CImageList::Create(CImageList* pImageList) {
    return Attach(::ImageList_Duplicate(pImageList->GetSafeHandle()));
}

BOOL CImageList::DeleteImageList() {
    const HIMAGELIST handle = Detach();
    return handle ? ::ImageList_Destroy(handle) : FALSE;
}

int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask) {
    return ::ImageList_Add(m_hImageList, HandleOf(pbmImage), HandleOf(pbmMask));
}

int CImageList::Add(CBitmap* pbmImage, COLORREF crMask) {
    return ::ImageList_AddMasked(m_hImageList, HandleOf(pbmImage), crMask);
}

BOOL CImageList::Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask) {
    return ::ImageList_Replace(m_hImageList, nImage, HandleOf(pbmImage), HandleOf(pbmMask));
}

BOOL CImageList::Copy(int iDst, int iSrc, UINT uFlags) {
    return ::ImageList_Copy(m_hImageList, iDst, m_hImageList, iSrc, uFlags);
}

BOOL CImageList::Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags) {
    return ::ImageList_Copy(m_hImageList, iDst, pSrc->GetSafeHandle(), iSrc, uFlags);
}

BOOL CImageList::Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle) {
    return ::ImageList_Draw(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, nStyle);
}

BOOL CImageList::DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg,
                        UINT nStyle) {
    return ::ImageList_DrawEx(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, sz.cx, sz.cy,
                              clrBk, clrFg, nStyle);
}

BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS* pimldp) {
    pimldp->cbSize = sizeof(*pimldp);
    pimldp->himl = m_hImageList;
    return ::ImageList_DrawIndirect(pimldp);
}

BOOL CImageList::DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin, UINT fStyle,
                              DWORD dwRop, COLORREF rgbBack, COLORREF rgbFore, DWORD fState,
                              DWORD Frame, COLORREF crEffect) {
    IMAGELISTDRAWPARAMS drawing = {};
    drawing.i = nImage;
    drawing.hdcDst = pDC->GetSafeHdc();
    drawing.x = pt.x;
    drawing.y = pt.y;
    drawing.cx = sz.cx;
    drawing.cy = sz.cy;
    drawing.xBitmap = ptOrigin.x;
    drawing.yBitmap = ptOrigin.y;
    drawing.rgbBk = rgbBack;
    drawing.rgbFg = rgbFore;
    drawing.fStyle = fStyle;
    drawing.dwRop = dwRop;
    drawing.fState = fState;
    drawing.Frame = Frame;
    drawing.crEffect = crEffect;
    return DrawIndirect(&drawing);
}

BOOL CImageList::BeginDrag(int nImage, CPoint ptHotSpot) {
    return ::ImageList_BeginDrag(m_hImageList, nImage, ptHotSpot.x, ptHotSpot.y);
}

void PASCAL CImageList::EndDrag() {
    ::ImageList_EndDrag();
}

BOOL PASCAL CImageList::DragEnter(CWnd* pWndLock, CPoint point) {
    return ::ImageList_DragEnter(pWndLock->GetSafeHwnd(), point.x, point.y);
}

BOOL PASCAL CImageList::DragLeave(CWnd* pWndLock) {
    return ::ImageList_DragLeave(pWndLock->GetSafeHwnd());
}

BOOL PASCAL CImageList::DragMove(CPoint pt) {
    return ::ImageList_DragMove(pt.x, pt.y);
}

BOOL PASCAL CImageList::DragShowNolock(BOOL bShow) {
    return ::ImageList_DragShowNolock(bShow);
}

BOOL CImageList::SetDragCursorImage(int nDrag, CPoint ptHotSpot) {
    return ::ImageList_SetDragCursorImage(m_hImageList, nDrag, ptHotSpot.x, ptHotSpot.y);
}

CImageList* PASCAL CImageList::GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot) {
    return FromHandle(::ImageList_GetDragImage(lpPoint, lpPointHotSpot));
}
