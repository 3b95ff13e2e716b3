#include "cuadros/frame/Texto.h"

namespace Cuadros {

CString Texto(UINT numero) {
    CString texto;
    if (!texto.LoadString(numero))
        texto.Empty();
    return texto;
}

} // namespace Cuadros
