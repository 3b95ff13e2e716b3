#include "sample/LineaOrdenes.h"

LineaOrdenes LeeLineaOrdenes(std::span<const wchar_t* const> argumentos) {
    LineaOrdenes linea;
    for (size_t i = 0; i < argumentos.size(); ++i) {
        const CString palabra = argumentos[i];
        if (palabra == L"--tour") {
            if (++i == argumentos.size()) {
                linea.error = L"--tour wants the folder for its results";
                break;
            }
            linea.carpetaRecorrido = argumentos[i];
        } else if (palabra.Left(1) == L"-") {
            linea.error = L"unknown option " + palabra;
        } else if (!linea.ficheroCodigos.IsEmpty()) {
            linea.error = L"more than one code table: " + palabra;
        } else {
            linea.ficheroCodigos = palabra;
        }
    }
    if (!linea.error.IsEmpty())
        linea.error += L"; usage: Ejemplo [--tour FOLDER] [CODE-TABLE-FILE]";
    return linea;
}
