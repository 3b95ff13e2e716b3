#pragma once

#include "kit/picture/Text.h"

#include <windows.h>

namespace kit {

/// Draws a window anew, with its frame as the active one's, and writes it as a PNG file.
/// Works without a display. Folders of the path must exist.
/// \return false when the window has no area or the file cannot be written.
bool savePicture(HWND window, const Text& path);

} // namespace kit
