#include "sample/Rutas.h"

#include <windows.h>

#include <shlobj.h>

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

CString RutaCompleta(const CString& fichero) {
    wchar_t ruta[32768];
    const DWORD largo = GetFullPathNameW(fichero, _countof(ruta), ruta, nullptr);
    return largo != 0 && largo < _countof(ruta) ? CString(ruta) : fichero;
}

CString HazCarpeta(const CString& carpeta, CString& completa) {
    wchar_t ruta[MAX_PATH];
    const DWORD largo =
        GetFullPathNameW(carpeta.IsEmpty() ? L"." : carpeta.GetString(), MAX_PATH, ruta, nullptr);
    const bool cabe = largo != 0 && largo < MAX_PATH;
    if (cabe)
        SHCreateDirectoryExW(nullptr, ruta, nullptr);
    const DWORD hay = cabe ? GetFileAttributesW(ruta) : INVALID_FILE_ATTRIBUTES;
    if (hay == INVALID_FILE_ATTRIBUTES || !(hay & FILE_ATTRIBUTE_DIRECTORY))
        return carpeta + L": the folder cannot be made";
    completa = ruta;
    return {};
}
