#pragma once

#include <afx.h>

#include <vector>

namespace Cuadros {

/// How many names a multiple-selection file prompt gave back in the line `nombres`.
int CuentaNombres(const CString& nombres);

/// Stores the first `cuantos` names of the line `nombres` into the array `destino`, which has at
/// least that many elements. All of them are emptied first, also when the line holds fewer names;
/// none is touched when the line is empty or `cuantos` is not positive.
///
/// @return how many names were stored.
int SeparaNombres(const CString& nombres, int cuantos, CString* destino);

/// All names of the line `nombres`, in order; empty when it holds none.
std::vector<CString> ListaNombres(const CString& nombres);

} // namespace Cuadros
