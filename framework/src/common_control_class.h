// What the wrappers of the common controls share.
#pragma once

#include <afxrt/config.h>

#include <commctrl.h>

class CImageList;

namespace afx_internal {

/// Sees to it that the window classes (ICC_...) can be created.
void RegisterCommonControls(DWORD classes);

/// A new object for an image list that a control has made for its caller; null for a null handle.
CImageList* NewImageList(HIMAGELIST handle);

} // namespace afx_internal
