#pragma once

#include "sample/Hecho.h"
#include "sample/Terreno.h"

/// Fills the records of the two imports from the headers of the terrain's files: at first each is
/// taken whole, a node at a time, the tile in UTM on its ellipsoid.
///
/// @return empty; else one line that says what is wrong with a header.
CString PreparaImportacion(Terreno& terreno);

/// Writes the nodes of the elevation grid that its record asks for into imported-grid.asc of the
/// folder of drawings, reads the new file again, and says how many nodes are there.
///
/// It failed when the file cannot be read or written, or has other nodes than the dialog has
/// counted. Where the dialog has counted none, there is no file, and that is no failure.
Hecho ImportaRejilla(const Terreno& terreno);

/// The same of the tile, into imported-tile.asc. The nodes stay in degrees: projecting them is left
/// to real hosts, and the result says which projection was chosen.
Hecho ImportaTesela(const Terreno& terreno);
