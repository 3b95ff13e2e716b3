#pragma once

#include <afx.h>

#include <string_view>
#include <vector>

#include "cotana/entidad/InfoClasificacion.h"

/// Reads the classifications of a point cloud out of a text file (its format:
/// docs/classification-format.md).
///
/// @param file            name of the file.
/// @param classifications hold those of the file afterwards, in its order; untouched when the file
///                        is refused.
/// @return empty when the file was read; else one line that names the file, the line where there
///         is one, and what is wrong with it: "cloud.txt(3): the description is missing".
CString ReadClassificationFile(const CString& file,
                               std::vector<Cotana::CInfoClasificacion>& classifications);

/// The same out of the bytes of a file; `file` is its name for the messages.
CString ParseClassifications(const CString& file, std::string_view bytes,
                             std::vector<Cotana::CInfoClasificacion>& classifications);
