#include "sample/Rutas.h"

#include <windows.h>

CString BuscaHaciaArriba(const CString& relativo) {
    wchar_t programa[32768];
    GetModuleFileNameW(nullptr, programa, _countof(programa));
    CString carpeta = programa;
    for (int fin; (fin = carpeta.ReverseFind(L'\\')) != -1;) {
        carpeta = carpeta.Left(fin);
        const CString ruta = carpeta + L"\\" + relativo;
        if (GetFileAttributesW(ruta) != INVALID_FILE_ATTRIBUTES)
            return ruta;
    }
    return relativo;
}
