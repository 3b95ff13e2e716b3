// CPoint, CSize, CRect.
#pragma once

#include <afxrt/geometry.h>
