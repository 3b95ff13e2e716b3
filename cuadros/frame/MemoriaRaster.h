#pragma once

#include <afxwin.h>

namespace Cuadros {

/// Memory that an image of a terrain takes, as its dialog shows it: megabytes of three bytes per
/// pixel with two decimals, or "-" when the pixel size is within 1e-7 of zero.
///
/// @param alto   height of the terrain, in metres.
/// @param ancho  width of the terrain, in metres.
/// @param pixel  side of a pixel, in metres.
CString MemoriaRaster(double alto, double ancho, double pixel);

} // namespace Cuadros
