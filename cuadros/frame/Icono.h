#pragma once

#include <afxwin.h>

namespace Cuadros {

/// Gives a dialog its small icon: the group icon of that number, found in the resource chain. A
/// number that no module has leaves the dialog without an icon.
void PonIcono(CWnd& dialogo, UINT icono);

/// Centres a dialog on its owner and gives it its small icon: how every dialog opens.
void CentraConIcono(CWnd& dialogo, UINT icono);

} // namespace Cuadros
