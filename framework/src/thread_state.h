// What the runtime keeps for each thread.
#pragma once

#include "afxrt/module.h"

namespace afx_internal {

struct ThreadState {
    AFX_MODULE_STATE* moduleState = nullptr; // null: the application's
    MSG currentMessage = {};                 // the one that a window procedure is at
    HWND exchangeWindow = nullptr;           // its controls' notifications are ignored
    CWnd* windowInCreation = nullptr;
    HHOOK creationHook = nullptr;
};

ThreadState& CurrentThread();

} // namespace afx_internal
