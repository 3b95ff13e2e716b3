#pragma once

#include <afxwin.h>

namespace Cuadros {

/// Refuses what the user entered: shows the text of number `mensaje` in a box owned by the dialog,
/// with the library's caption and the error icon, and returns when the user has read it.
void Rechaza(CWnd& dialogo, UINT mensaje);

} // namespace Cuadros
