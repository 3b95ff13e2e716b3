// The compact layout of a dialog: a row that the host does not want is hidden, what was below it is
// raised, and the window shrinks by as much.
#pragma once

#include <afxwin.h>

#include <initializer_list>

namespace Cuadros {

/// How far the top of control `abajo` is below the top of control `arriba`, in pixels; 0 where one
/// of them is absent.
int AlturaEntre(CWnd& dialogo, int arriba, int abajo);

/// Moves controls up, in this order, keeping their left edge and their size. One that is absent is
/// passed over.
void Sube(CWnd& dialogo, int pixeles, std::initializer_list<int> controles);

/// Takes height off the bottom of a dialog, keeping its place and its width. A dialog that was
/// topmost is no longer.
void Encoge(CWnd& dialogo, int pixeles);

} // namespace Cuadros
