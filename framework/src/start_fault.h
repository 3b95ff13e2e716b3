// Faults that a test arms in the start of a module.
#pragma once

#include "afxrt/module.h"

namespace afx_internal {

/// Whether the start shall fail at this step. An armed fault happens once.
bool FailsHere(StartFault step);

} // namespace afx_internal
