#pragma once

#include "kit/picture/Text.h"

#include <windows.h>

#include <span>

namespace kit {

/// Writes pixels, rows from the top, as a PNG file of 24 bits a pixel, by the system's encoder.
/// Any thread may call it, whether or not it has initialised COM.
/// \return false when there are no pixels or the file cannot be written.
bool writePng(const Text& path, std::span<const RGBQUAD> pixels, int width, int height);

} // namespace kit
