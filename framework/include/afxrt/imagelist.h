// Image lists: images of one size under indices from 0.
#pragma once

#include "gdi.h"

#include <commctrl.h>

class CWnd;

/// Owns the image list attached to it. A list view destroys its lists at its own end unless it has
/// the style LVS_SHAREIMAGELISTS: without the style, Detach what it was given.
class AFXRT_API CImageList : public CObject {
    DECLARE_DYNCREATE(CImageList)

public:
    CImageList();
    ~CImageList() override;

    HIMAGELIST m_hImageList;

    /// The attached handle; null also when called on a null pointer.
    HIMAGELIST GetSafeHandle() const;
    operator HIMAGELIST() const { return GetSafeHandle(); }
    /// The object attached to the handle, or a temporary one that lives until the thread is idle
    /// and owns nothing. Null for a null handle.
    static CImageList* PASCAL FromHandle(HIMAGELIST hImageList);
    /// The object attached to the handle, or null.
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST hImageList);
    static void PASCAL DeleteTempMap();
    /// Takes the handle over. FALSE for a null handle.
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();

    /// nFlags: ILC_...; nInitial: images to make room for; nGrow: how many more at a time.
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    /// From a bitmap resource of the resource chain, cut into images cx pixels wide. Pixels of the
    /// colour crMask are transparent; CLR_NONE: none is.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask);
    /// A list of one image: the second over the first, dx to the right and dy down.
    BOOL Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx,
                int dy);
    /// A copy.
    BOOL Create(CImageList* pImageList);
    BOOL DeleteImageList();

    int GetImageCount() const { return ::ImageList_GetImageCount(m_hImageList); }
    BOOL SetImageCount(UINT uNewCount) {
        return ::ImageList_SetImageCount(m_hImageList, uNewCount);
    }
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const {
        return ::ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
    }
    COLORREF GetBkColor() const { return ::ImageList_GetBkColor(m_hImageList); }
    /// CLR_NONE: the images are drawn with their masks. Returns the previous colour.
    COLORREF SetBkColor(COLORREF cr) { return ::ImageList_SetBkColor(m_hImageList, cr); }

    /// These copy the image, which no device context may have selected, and return the index of
    /// the (first) new one, -1 on failure. The mask colour's pixels become transparent; the bitmap
    /// itself has them black afterwards.
    int Add(CBitmap* pbmImage, CBitmap* pbmMask);
    int Add(CBitmap* pbmImage, COLORREF crMask);
    int Add(HICON hIcon) { return ::ImageList_AddIcon(m_hImageList, hIcon); }
    /// -1: all images.
    BOOL Remove(int nImage) { return ::ImageList_Remove(m_hImageList, nImage); }
    BOOL Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask);
    int Replace(int nImage, HICON hIcon) {
        return ::ImageList_ReplaceIcon(m_hImageList, nImage, hIcon);
    }
    /// The caller destroys the icon.
    HICON ExtractIcon(int nImage) { return ::ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL); }
    BOOL Copy(int iDst, int iSrc, UINT uFlags = ILCF_MOVE);
    BOOL Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags = ILCF_MOVE);
    /// nOverlay: 1 to 4.
    BOOL SetOverlayImage(int nImage, int nOverlay) {
        return ::ImageList_SetOverlayImage(m_hImageList, nImage, nOverlay);
    }

    /// nStyle: ILD_...
    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle);
    BOOL DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg,
                UINT nStyle);
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS* pimldp);
    BOOL DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin,
                      UINT fStyle = ILD_NORMAL, DWORD dwRop = SRCCOPY,
                      COLORREF rgbBack = CLR_DEFAULT, COLORREF rgbFore = CLR_DEFAULT,
                      DWORD fState = ILS_NORMAL, DWORD Frame = 0, COLORREF crEffect = CLR_DEFAULT);

    // Dragging: one image at a time moves with the pointer, above the window that was entered.
    BOOL BeginDrag(int nImage, CPoint ptHotSpot);
    static void PASCAL EndDrag();
    static BOOL PASCAL DragEnter(CWnd* pWndLock, CPoint point);
    static BOOL PASCAL DragLeave(CWnd* pWndLock);
    static BOOL PASCAL DragMove(CPoint pt);
    static BOOL PASCAL DragShowNolock(BOOL bShow);
    BOOL SetDragCursorImage(int nDrag, CPoint ptHotSpot);
    static CImageList* PASCAL GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot);
};
