#pragma once

#include <vector>

#include "sample/Ficha.h"
#include "sample/tour/Visita.h"

/// What the tour saw at one stop.
struct Parada {
    CString subsistema; ///< Empty for the host's own window.
    CString titulo;
    Ficha antes, despues;
    std::vector<DWORD_PTR> ayudas; ///< Contexts for which help was asked.
    std::vector<Visita::Foto> fotos;
    CString hecho;  ///< What came of the host's command; empty when there was none.
    CString dibujo; ///< Full path of an SVG file that the command has drawn; empty without one.
};

/// Writes index.html into the tour's folder: one file with the pictures in it.
/// @return empty; else one line that names the file which cannot be written, or the picture which
///         cannot be read, and says why.
CString EscribePagina(const std::vector<Parada>& paradas, const CString& carpeta);
