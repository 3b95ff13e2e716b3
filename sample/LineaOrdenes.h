#pragma once

#include <afx.h>

#include <span>

/// What the command line asks for.
struct LineaOrdenes {
    CString carpetaRecorrido; ///< Folder for the tour's results; empty opens the window.
    CString ficheroRejilla;   ///< The elevation grid; empty takes the one of the sample.
    CString carpetaDibujos;   ///< Folder for drawings; empty takes the tour's, without a tour the
                              ///< current one.
    CString ficheroCodigos;   ///< The code-table file; empty takes the one of the sample.
    CString error;            ///< What is wrong with the command line; empty when nothing is.
};

/// @param argumentos the words after the program's name.
LineaOrdenes LeeLineaOrdenes(std::span<const wchar_t* const> argumentos);
