#pragma once

#include <afx.h>

#include <string_view>

#include "cotana/entidad/DigiTab.h"

/// Reads a code table out of a text file (its format: docs/code-table-format.md).
///
/// @param file   name of the file.
/// @param table  holds the file's codes afterwards, in their order; untouched when the file is
///               refused.
/// @return empty when the file was read; else one line that names the file, the line where there
///         is one, and what is wrong with it: "codes.txt(12): the style is missing".
CString ReadCodeTableFile(const CString& file, Cotana::CDigiTab& table);

/// The same out of the bytes of a file; `file` is its name for the messages.
CString ParseCodeTable(const CString& file, std::string_view bytes, Cotana::CDigiTab& table);
