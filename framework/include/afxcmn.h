// Image lists and the common controls.
#pragma once

#include "afxwin.h"

#include "afxrt/common_controls.h"
#include "afxrt/imagelist.h"
