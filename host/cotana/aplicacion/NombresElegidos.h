#pragma once

#include <afx.h>

#include "cotana/Exporta.h"

namespace Cotana {

/// One line out of the answer of Windows' multiple-selection file dialog.
///
/// @param lista the dialog's answer: either one full path, or a folder followed by names, each
///              ended by a null character, the last one by two.
/// @return the full paths with a blank between them, each in double quotes when it holds a blank;
///         empty when the list is.
COTANA_API CString UneNombresElegidos(LPCTSTR lista);

} // namespace Cotana
