// The host's file prompt. A dialog exchanges its controls itself, before it asks and after the user
// has confirmed: an exchange is seen by the host, so no function hides one.
//
// Where the host's application object is none of `Cotana::CAplicacion`, every prompt answers as if
// the user had cancelled it.
#pragma once

#include <afxwin.h>

class CDocTemplate;

namespace Cuadros {

/// Asks for a file that exists.
///
/// @param nombre    the name shown at first; the chosen one afterwards. The host sees this very
///                  object, not a copy.
/// @param plantilla the dialog's stored document template, whose file filters the host offers; null
///                  where a dialog has none.
/// @param clase     kind of file, of the host's own counting; 0 is none in particular.
/// @return nonzero when the user confirmed.
BOOL PideFicheroAbrir(CString& nombre, CDocTemplate** plantilla, int clase = 0);

/// Asks for a file to write: one that exists is asked about before it is overwritten, one that does
/// not before it is created. Arguments and result as of `PideFicheroAbrir`.
BOOL PideFicheroGuardar(CString& nombre, CDocTemplate** plantilla, int clase = 0);

/// Asks for any number of files that exist.
///
/// @param nombres one line of all chosen names, see `ListaNombres`.
/// @return nonzero when the user confirmed.
BOOL PideVariosFicheros(CString& nombres, CDocTemplate** plantilla, int clase = 0);

} // namespace Cuadros
