#pragma once

#include "sample/Hecho.h"
#include "sample/Terreno.h"

/// Draws the contours of the terrain as the record of the contour options asks for them, into
/// contours.dxf and contours.svg of the folder of drawings: their interval and master interval, the
/// elevation range, the labels, the codes as layers, at the record's scale. What the record says of
/// smoothing, of the boundary, and of contours to respect is left to real hosts; where it asks for
/// them, the result says that they were left out. The advanced values are left to them, too; and
/// lines whose ends meet are always joined.
///
/// Where labels cannot be had, there is a drawing without them, and the result says why. It failed
/// when the contours cannot be traced or written, or there is not enough memory.
Hecho DibujaCurvas(const Terreno& terreno);
