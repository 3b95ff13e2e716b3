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

/// Replaces `hojas` by the rows in their order; each is selected, alone, as it is taken.
void RecogeHojas(CListBox& lista, std::vector<CString>& hojas);

/// Enables a dialog's OK while its list holds a file.
void HabilitaAceptar(CWnd& dialogo, const CListBox& lista);

} // namespace Cuadros
