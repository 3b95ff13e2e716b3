// What the runtime keeps for each thread.
#pragma once

#include "afxrt/module.h"

namespace afx_internal {

struct ThreadState {
    AFX_MODULE_STATE* moduleState = nullptr; // null: the application's
    MSG currentMessage = {};                 // the one that a window procedure is at
    MSG pumpedMessage = {};                  // the last one that a loop took from the queue
    CWnd* modalWindow = nullptr;             // the innermost one that runs modally
    CWnd* windowInCreation = nullptr;
    HHOOK creationHook = nullptr;
};

ThreadState& CurrentThread();

/// What the message that ended the thread's loop says; 0 when no loop was ended.
int ExitCodeOfLoop();

/// Offers a message to the window that it is for and on up to its top-level window: each may take
/// it (PreTranslateMessage), and it goes no further.
bool OfferToWindows(MSG* message);

} // namespace afx_internal
