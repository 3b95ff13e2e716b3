#include "cuadros/frame/Dialogo.h"

#include <map>
#include <mutex>
#include <utility>

#include "cuadros/resources/StringIds.h"

namespace Cuadros {

namespace {

/// The group icon of that number; null when no module has it. Loaded once and kept: a module that
/// is mapped as data, as the language file is, makes a new one at each call.
HICON Icono(UINT numero) {
    static std::mutex cerrojo; // a host may open dialogs on several threads
    static std::map<std::pair<HINSTANCE, UINT>, HICON> cargados;
    const LPCTSTR nombre = MAKEINTRESOURCE(numero);
    const HINSTANCE modulo = AfxFindResourceHandle(nombre, RT_GROUP_ICON);
    const std::lock_guard cerrado(cerrojo);
    HICON& icono = cargados[{modulo, numero}];
    if (icono == nullptr)
        icono = LoadIcon(modulo, nombre);
    return icono;
}

} // namespace

CString Texto(UINT numero) {
    CString texto;
    texto.LoadString(numero);
    return texto;
}

void PonIcono(CWnd& dialogo, UINT icono) {
    // Kept: only the small one, since the task switcher is to show the host's.
    dialogo.SendMessage(WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(Icono(icono)));
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
