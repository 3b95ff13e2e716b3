// Applications, windows, dialogs, controls, drawing.
#pragma once

#include "afx.h"
#include "afxres.h"
#include "afxrt/app.h"
#include "afxrt/controls.h"
#include "afxrt/ddx.h"
#include "afxrt/device_context.h"
#include "afxrt/dialog.h"
#include "afxrt/gdi.h"
#include "afxrt/geometry.h"
#include "afxrt/menu.h"
#include "afxrt/module.h"
#include "afxrt/wnd.h"

class CDocTemplate;
