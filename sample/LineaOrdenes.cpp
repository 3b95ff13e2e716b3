#include "sample/LineaOrdenes.h"

namespace {

/// An option, and what follows it.
struct Opcion {
    const wchar_t* palabra;
    const wchar_t* pide; ///< "an elevation grid"
    CString LineaOrdenes::*destino;
};

constexpr Opcion Opciones[] = {
    {L"--grid", L"an elevation grid", &LineaOrdenes::ficheroRejilla},
    {L"--tile", L"a GTOPO30 tile", &LineaOrdenes::ficheroTesela},
    {L"--classifications", L"a list of classifications", &LineaOrdenes::ficheroClasificaciones},
    {L"--drawings", L"the folder for drawings", &LineaOrdenes::carpetaDibujos},
};

const Opcion* Busca(const CString& palabra) {
    for (const Opcion& opcion : Opciones)
        if (palabra == opcion.palabra)
            return &opcion;
    return nullptr;
}

} // namespace

LineaOrdenes LeeLineaOrdenes(Palabras palabras, const wchar_t* programa) {
    LineaOrdenes linea;
    for (size_t i = 0; i < palabras.size() && linea.error.IsEmpty(); ++i) {
        const CString palabra = palabras[i];
        if (const Opcion* const opcion = Busca(palabra)) {
            CString& destino = linea.*opcion->destino;
            const CString valor = ++i < palabras.size() ? palabras[i] : L"";
            if (!destino.IsEmpty())
                linea.error = palabra + L" is given twice";
            else if (valor.IsEmpty() || valor[0] == L'-')
                linea.error = palabra + L" wants " + opcion->pide;
            destino = valor;
        } else if (palabra.IsEmpty()) {
            linea.error = L"the name of the code table is empty";
        } else if (palabra[0] == L'-') {
            linea.error = L"unknown option " + palabra;
        } else if (!linea.ficheroCodigos.IsEmpty()) {
            linea.error = L"more than one code table: " + palabra;
        } else {
            linea.ficheroCodigos = palabra;
        }
    }
    if (!linea.error.IsEmpty())
        linea.error += Uso(programa);
    return linea;
}

CString Uso(const wchar_t* programa) {
    return CString(L"; usage: ") + programa +
           L" [--grid ASC-FILE] [--tile DEM-FILE] [--classifications FILE] [--drawings FOLDER] "
           L"[CODE-TABLE-FILE]";
}
