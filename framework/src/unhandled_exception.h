// Exceptions that a handler lets out.
#pragma once

#include "afxrt/config.h"

namespace afx_internal {

/// Called where an exception of whatever type has been caught that was on its way into the system:
/// asks the thread's ProcessWndProcException, or the application's where the thread has no object
/// of its own, and deletes the exception. The result is the message's.
LRESULT ProcessUnhandledException(const MSG& message) noexcept;

} // namespace afx_internal
