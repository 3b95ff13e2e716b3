// What nearly every dialog does: it opens in the middle of its owner with its icon, reads its texts
// by number, refuses a value with a message or asks yes or no, lets another dialog edit a copy of
// its values, and opens its page of the host's help. What it does to its controls comes with it.
#pragma once

#include <afxwin.h>

#include <tuple>
#include <utility>

#include "cuadros/frame/Controles.h"

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

/// The same with a text and a caption that need not be in the language file.
void Rechaza(CWnd& dialogo, const CString& texto, LPCTSTR titulo);

/// Asks the text of number `pregunta` in a box owned by the dialog, without a caption.
///
/// @return whether the user said yes.
bool Pregunta(CWnd& dialogo, UINT pregunta);

/// Lets another conversation edit values of a record: it runs over copies of them, and only what
/// ends with `IDOK` is written back.
///
/// @param conversa called with a reference to the copy of each value, in their order; answers what
///                 its `DoModal` does.
template <class Conversa, class... Valores>
void EditaCopia(Conversa conversa, Valores&... valores) {
    std::tuple<Valores...> copias(valores...);
    if (std::apply(conversa, copias) == IDOK)
        std::tie(valores...) = std::move(copias);
}

/// Help context of the dialog with this template number.
constexpr DWORD_PTR ContextoAyuda(UINT plantilla) {
    constexpr DWORD_PTR baseDeRecursos = 0x20000;
    return baseDeRecursos + plantilla;
}

/// Opens the host's help file at the page of the dialog with this template number; does nothing
/// where the host has no application object.
void AbreAyuda(UINT plantilla);

} // namespace Cuadros
