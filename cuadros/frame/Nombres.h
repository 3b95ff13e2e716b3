// Several files at once, as the user names them: in a file prompt, or by dropping them.
#pragma once

#include <afxwin.h>

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

/// The paths of the files and folders that were dropped, each whole, in the order in which the
/// shell reports them.
std::vector<CString> RutasSoltadas(HDROP soltados);

} // namespace Cuadros
