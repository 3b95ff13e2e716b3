#pragma once

#include <afx.h>

#include <string>

#include "sample/terrain/ContourDrawing.h"

/// Writes a drawing as a DXF file of release 12, which every CAD program reads. Coordinates are
/// those of the terrain, in metres. A contour is a polyline that has its elevation, to a millionth
/// of a metre, a label a text at the elevation of its line. Master contours and depressions have
/// colours of their own, also where they share a layer.
///
/// @return empty when the file was written; else one line that names it and says what went wrong:
///         "hills.dxf: the disk is full". What stood there before is untouched then.
/// Throws std::bad_alloc when there is not enough memory to write it.
CString WriteDxfFile(const CString& file, const ContourDrawing& drawing);

/// The name of a layer as release 12 has it: of at most 31 letters of A to Z, digits, $, _ and -.
/// Small letters become large ones and all else _; without a name it is layer 0.
std::string DxfLayerName(const CString& name);
