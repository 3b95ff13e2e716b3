#pragma once

#include "sample/Orden.h"
#include "sample/Terreno.h"

/// Draws the contours of the terrain as the record of the contour options asks for them, into
/// contours.dxf and contours.svg of the folder of drawings: their interval and master interval, the
/// elevation range, the labels, the codes as layers, at the record's scale. What the record says of
/// smoothing, of the boundary, and of contours to respect is left to real hosts.
Hecho DibujaCurvas(const Terreno& terreno);
