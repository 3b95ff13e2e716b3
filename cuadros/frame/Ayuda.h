#pragma once

#include <afxwin.h>

namespace Cuadros {

/// Help context of the dialog with this template number.
constexpr DWORD_PTR ContextoAyuda(UINT plantilla) {
    constexpr DWORD_PTR baseDeRecursos = 0x20000;
    return baseDeRecursos + plantilla;
}

/// Opens the host's help file at a context; does nothing where the host has no application object.
void AbreAyuda(DWORD_PTR contexto);

} // namespace Cuadros
