// What nearly every dialog does: it opens in the middle of its owner with its icon, reads its texts
// by number, refuses a value with a message, and opens its page of the host's help.
#pragma once

#include <afxwin.h>

namespace Cuadros {

/// The text of that number in the language file; empty when it has none.
CString Texto(UINT numero);

/// Gives a dialog its small icon: the group icon of that number, found in the resource chain. A
/// number that no module has leaves the dialog without an icon.
void PonIcono(CWnd& dialogo, UINT icono);

/// Centres a dialog on its owner and gives it its small icon: how every dialog opens.
void CentraConIcono(CWnd& dialogo, UINT icono);

/// Refuses what the user entered: shows the text of number `mensaje` in a box owned by the dialog,
/// with the library's caption and the error icon, and returns when the user has read it.
void Rechaza(CWnd& dialogo, UINT mensaje);

/// Help context of the dialog with this template number.
constexpr DWORD_PTR ContextoAyuda(UINT plantilla) {
    constexpr DWORD_PTR baseDeRecursos = 0x20000;
    return baseDeRecursos + plantilla;
}

/// Opens the host's help file at the page of the dialog with this template number; does nothing
/// where the host has no application object.
void AbreAyuda(UINT plantilla);

} // namespace Cuadros
