#pragma once

#include <afxwin.h>

#include <initializer_list>

namespace Cuadros {

/// Enables or disables the controls of a dialog with these numbers, in this order. One that is
/// disabled with the focus on it passes it on to the control before it.
void Habilita(CWnd& dialogo, BOOL habilitados, std::initializer_list<int> controles);

/// Shows or hides the controls of a dialog with these numbers, in this order.
///
/// @param como Windows' show command: 0 (`SW_HIDE`) hides; every other is passed on as it is.
void Muestra(CWnd& dialogo, int como, std::initializer_list<int> controles);

} // namespace Cuadros
