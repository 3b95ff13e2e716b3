#pragma once

#include <afx.h>

#include <memory>
#include <string_view>

#include "sample/terrain/ElevationGrid.h"
#include "sample/terrain/GridSource.h"

/// Reads an elevation grid out of an ESRI ASCII grid file (its format:
/// docs/elevation-grid-format.md). The file is read block by block: however long it is, only the
/// elevations are kept, 8 bytes for each.
///
/// @param file name of the file.
/// @param grid holds the file's elevations afterwards; untouched when the file is refused.
/// @return empty when the file was read; else one line that names the file, the line where there
///         is one, and what is wrong with it: "hills.asc(3): the header key is unknown: xllcentre".
CString ReadAscGridFile(const CString& file, ElevationGrid& grid);

/// The same out of the bytes of a file; `file` is its name for the messages.
CString ParseAscGrid(const CString& file, std::string_view bytes, ElevationGrid& grid);

/// Opens an ESRI ASCII grid file to read its elevations one by one; its header is read at once.
/// Throws a RefusedFile.
std::unique_ptr<GridSource> OpenAscGrid(const CString& file);

/// The same of the bytes of a file, which outlive the source.
std::unique_ptr<GridSource> OpenAscGrid(const CString& file, std::string_view bytes);
