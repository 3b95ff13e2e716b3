#include "cuadros/frame/Dialogo.h"

#include "cuadros/resources/StringIds.h"

namespace Cuadros {

CString Texto(UINT numero) {
    CString texto;
    texto.LoadString(numero);
    return texto;
}

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

void Rechaza(CWnd& dialogo, UINT mensaje) {
    Rechaza(dialogo, Texto(mensaje), Texto(IDS_TITULO_MENSAJES));
}

void Rechaza(CWnd& dialogo, const CString& texto, LPCTSTR titulo) {
    dialogo.MessageBox(texto, titulo, MB_ICONERROR);
}

bool Pregunta(CWnd& dialogo, UINT pregunta) {
    return dialogo.MessageBox(Texto(pregunta), L"", MB_YESNO | MB_ICONQUESTION) == IDYES;
}

void AbreAyuda(UINT plantilla) {
    constexpr UINT abrirContexto = 0x000F; // HH_HELP_CONTEXT
    if (CWinApp* const aplicacion = AfxGetApp())
        aplicacion->HtmlHelp(ContextoAyuda(plantilla), abrirContexto);
}

} // namespace Cuadros
