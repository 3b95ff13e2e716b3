#pragma once

#include <afx.h>

#include <memory>
#include <string_view>

#include "sample/terrain/GridSource.h"

/// Opens a GTOPO30 tile (its format: docs/gtopo30-format.md) to read its elevations one by one. Its
/// header, the file beside it that ends in .HDR, is read at once, and so is the length of the tile;
/// the frame is in degrees.
///
/// @param file name of the tile: "W006N41.DEM".
/// Throws a RefusedFile, which names the file and the field of the header that are at fault:
/// "W006N41.HDR(3): NROWS is below 2: 0".
std::unique_ptr<GridSource> OpenGtopo30(const CString& file);

/// The same of the bytes of a tile, which outlive the source, and of those of its header.
std::unique_ptr<GridSource> OpenGtopo30(const CString& file, std::string_view bytes,
                                        std::string_view header);
