#include "cuadros/frame/Peticiones.h"

#include <afxdlgs.h>

#include <cotana/aplicacion/Aplicacion.h>

#include "cuadros/frame/Dialogo.h"
#include "cuadros/resources/StringIds.h"

namespace Cuadros {

namespace {

constexpr DWORD OpcionesAbrir = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY;
constexpr DWORD OpcionesGuardar = OFN_CREATEPROMPT | OFN_OVERWRITEPROMPT;
constexpr DWORD OpcionesVarios = OpcionesAbrir | OFN_EXPLORER | OFN_ALLOWMULTISELECT;

/// The host's application object; null where it is of another class.
Cotana::CAplicacion* Aplicacion() {
    return dynamic_cast<Cotana::CAplicacion*>(AfxGetApp());
}

BOOL PideFichero(CString& nombre, DWORD opciones, BOOL abrir, CDocTemplate** plantilla, int clase) {
    Cotana::CAplicacion* const aplicacion = Aplicacion();
    if (aplicacion == nullptr)
        return FALSE;
    // Kept: the host is handed the title of opening also where it saves.
    return aplicacion->PideFichero(nombre, IDS_TITULO_ABRIR, opciones, abrir, plantilla, clase,
                                   nullptr);
}

} // namespace

BOOL PideFicheroAbrir(CString& nombre, CDocTemplate** plantilla, int clase) {
    return PideFichero(nombre, OpcionesAbrir, TRUE, plantilla, clase);
}

BOOL PideFicheroGuardar(CString& nombre, CDocTemplate** plantilla, int clase) {
    return PideFichero(nombre, OpcionesGuardar, FALSE, plantilla, clase);
}

BOOL PideVariosFicheros(CString& nombres, CDocTemplate** plantilla, int clase) {
    return PideFichero(nombres, OpcionesVarios, TRUE, plantilla, clase);
}

CDocTemplate* PlantillaActual() {
    const Cotana::CAplicacion* const aplicacion = Aplicacion();
    return aplicacion ? aplicacion->PlantillaActual() : nullptr;
}

bool PideFicheroAlSistema(CString& nombre, UINT filtro) {
    CFileDialog sistema(FALSE, nullptr, nombre, OpcionesGuardar, Texto(filtro));
    if (sistema.DoModal() != IDOK)
        return false;
    nombre = sistema.GetPathName();
    return true;
}

bool PideColor(CWnd& dialogo, COLORREF& color) {
    CColorDialog sistema(color, CC_FULLOPEN | CC_ANYCOLOR, &dialogo);
    if (sistema.DoModal() != IDOK)
        return false;
    color = sistema.GetColor();
    return true;
}

void MuestraColor(CWnd& dialogo, COLORREF color, int rojo, int verde, int azul) {
    dialogo.SetDlgItemInt(rojo, GetRValue(color));
    dialogo.SetDlgItemInt(verde, GetGValue(color));
    dialogo.SetDlgItemInt(azul, GetBValue(color));
}

} // namespace Cuadros
