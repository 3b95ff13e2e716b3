#pragma once

#include <afxwin.h>

namespace Cuadros {

/// The text of that number in the language file; empty when it has none.
CString Texto(UINT numero);

} // namespace Cuadros
