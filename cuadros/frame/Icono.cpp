#include "cuadros/frame/Icono.h"

namespace Cuadros {

void PonIcono(CWnd& dialogo, UINT icono) {
    const LPCTSTR nombre = MAKEINTRESOURCE(icono);
    const HICON imagen = LoadIcon(AfxFindResourceHandle(nombre, RT_GROUP_ICON), nombre);
    // Kept: only the small one, since the task switcher is to show the host's.
    dialogo.SendMessage(WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(imagen));
}

void CentraConIcono(CWnd& dialogo, UINT icono) {
    dialogo.CenterWindow();
    PonIcono(dialogo, icono);
}

} // namespace Cuadros
