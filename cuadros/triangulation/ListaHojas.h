// The list of files of the two dialogs that take their terrain from disk.
#pragma once

#include <afxwin.h>

#include <vector>

namespace Cuadros {

/// Adds the names of a multiple-selection prompt's line to the list.
///
/// @return false when the line held none.
bool SumaNombres(CListBox& lista, const CString& nombres);

/// Adds the files and folders that were dropped; a path is cut to 259 characters.
void SumaSoltados(CListBox& lista, HDROP soltados);

/// Takes the selected rows out of the list.
void RestaSeleccionados(CListBox& lista);

/// Whether at least one row is selected.
bool HaySeleccion(const CListBox& lista);

/// The rows in their order; each is selected, alone, as it is taken.
std::vector<CString> RecogeHojas(CListBox& lista);

} // namespace Cuadros
