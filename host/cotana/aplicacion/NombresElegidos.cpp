#include "cotana/aplicacion/NombresElegidos.h"

#include <cwchar>

namespace Cotana {

namespace {

void Anade(CString& linea, const CString& nombre) {
    if (!linea.IsEmpty())
        linea += L" ";
    if (nombre.Find(L' ') < 0)
        linea += nombre;
    else
        linea += L"\"" + nombre + L"\"";
}

CString CarpetaConBarra(LPCTSTR carpeta) {
    CString ruta(carpeta);
    // The folder of a drive's root comes with its backslash, every other one without.
    if (!ruta.IsEmpty() && ruta[ruta.GetLength() - 1] != L'\\')
        ruta += L"\\";
    return ruta;
}

} // namespace

CString UneNombresElegidos(LPCTSTR lista) {
    CString linea;
    if (*lista == L'\0')
        return linea;
    LPCTSTR nombre = lista + std::wcslen(lista) + 1;
    if (*nombre == L'\0') {
        Anade(linea, lista);
        return linea;
    }
    const CString carpeta = CarpetaConBarra(lista);
    for (; *nombre != L'\0'; nombre += std::wcslen(nombre) + 1)
        Anade(linea, carpeta + nombre);
    return linea;
}

} // namespace Cotana
