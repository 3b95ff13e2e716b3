#include "sample/LineaOrdenes.h"

namespace {

/// An option, and what follows it.
struct Opcion {
    const wchar_t* palabra;
    const wchar_t* pide; ///< "the folder for its results"
    CString LineaOrdenes::*destino;
};

constexpr Opcion Opciones[] = {
    {L"--tour", L"the folder for its results", &LineaOrdenes::carpetaRecorrido},
    {L"--grid", L"an elevation grid", &LineaOrdenes::ficheroRejilla},
    {L"--drawings", L"the folder for drawings", &LineaOrdenes::carpetaDibujos},
};

const Opcion* Busca(const CString& palabra) {
    for (const Opcion& opcion : Opciones)
        if (palabra == opcion.palabra)
            return &opcion;
    return nullptr;
}

} // namespace

LineaOrdenes LeeLineaOrdenes(std::span<const wchar_t* const> argumentos) {
    LineaOrdenes linea;
    for (size_t i = 0; i < argumentos.size(); ++i) {
        const CString palabra = argumentos[i];
        if (const Opcion* const opcion = Busca(palabra)) {
            if (++i == argumentos.size() || *argumentos[i] == L'\0') {
                linea.error = palabra + L" wants " + opcion->pide;
                break;
            }
            linea.*opcion->destino = argumentos[i];
        } else if (palabra.IsEmpty()) {
            linea.error = L"the name of the code table is empty";
        } else if (palabra.Left(1) == L"-") {
            linea.error = L"unknown option " + palabra;
        } else if (!linea.ficheroCodigos.IsEmpty()) {
            linea.error = L"more than one code table: " + palabra;
        } else {
            linea.ficheroCodigos = palabra;
        }
    }
    if (!linea.error.IsEmpty())
        linea.error += L"; usage: Ejemplo [--tour FOLDER] [--grid ASC-FILE] [--drawings FOLDER] "
                       L"[CODE-TABLE-FILE]";
    return linea;
}
