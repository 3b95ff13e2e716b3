#include "cuadros/frame/Mensaje.h"

#include "cuadros/frame/Texto.h"
#include "cuadros/resources/StringIds.h"

namespace Cuadros {

void Rechaza(CWnd& dialogo, UINT mensaje) {
    dialogo.MessageBox(Texto(mensaje), Texto(IDS_TITULO_MENSAJES), MB_ICONERROR);
}

} // namespace Cuadros
