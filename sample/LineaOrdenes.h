#pragma once

#include <afx.h>

#include <span>

/// The words of a command line.
using Palabras = std::span<const wchar_t* const>;

/// What the command line asks for.
struct LineaOrdenes {
    CString ficheroRejilla;         ///< The elevation grid; empty takes the one of the sample.
    CString ficheroTesela;          ///< The GTOPO30 tile; empty takes the one of the sample.
    CString ficheroClasificaciones; ///< The classifications; empty takes those of the sample.
    CString carpetaDibujos;         ///< Folder for drawings; empty takes the current one.
    CString ficheroCodigos;         ///< The code-table file; empty takes the one of the sample.
    CString error;                  ///< What is wrong with the command line; empty when nothing is.
};

/// @param palabras those after the program's name.
/// @param programa how the program is called, for the error.
LineaOrdenes LeeLineaOrdenes(Palabras palabras, const wchar_t* programa);

/// What an error of the command line ends with: "; usage: Ejemplo [--grid ASC-FILE] ...".
CString Uso(const wchar_t* programa);
