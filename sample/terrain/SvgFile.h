#pragma once

#include <afx.h>

#include "sample/terrain/ContourDrawing.h"

/// Writes a drawing as an SVG file, in its size on paper. Its coordinates are metres from the
/// north-western corner of the terrain, east and south: of the terrain's own, many programs have
/// not enough digits. Each contour has its elevation as data-elevation, in metres, to a millionth.
///
/// @return empty when the file was written; else one line that names it and says what went wrong:
///         "hills.svg: the disk is full". What stood there before is untouched then.
/// Throws std::bad_alloc when there is not enough memory to write it.
CString WriteSvgFile(const CString& file, const ContourDrawing& drawing);
