#include "cuadros/frame/Ayuda.h"

namespace Cuadros {

void AbreAyuda(DWORD_PTR contexto) {
    constexpr UINT abrirContexto = 0x000F; // HH_HELP_CONTEXT
    if (CWinApp* const aplicacion = AfxGetApp())
        aplicacion->HtmlHelp(contexto, abrirContexto);
}

} // namespace Cuadros
