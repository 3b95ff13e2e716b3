// What a dialog lets the user choose in another one: files, in the host's prompt or the system's,
// and colours. A dialog exchanges its controls itself, before it asks and after the user has
// confirmed: an exchange is seen by the host, so no function hides one.
#pragma once

#include <afxwin.h>

class CDocTemplate;

namespace Cuadros {

/// Asks for a file that exists, by the host's prompt. Where the host's application object is none
/// of `Cotana::CAplicacion`, this and the next two answer as if the user had cancelled.
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

/// The template of the document in which the host's user works, for a dialog that keeps it when it
/// is constructed; null where there is none, and where the host's application object is none of
/// `Cotana::CAplicacion`.
CDocTemplate* PlantillaActual();

/// Asks for a file to write, as `PideFicheroGuardar`, but by the system's own dialog.
///
/// @param nombre the name shown at first; the whole path of the chosen one afterwards.
/// @param filtro number of the text of the filters, "name|pattern|name|pattern||".
/// @return whether the user confirmed.
bool PideFicheroAlSistema(CString& nombre, UINT filtro);

/// Asks for a colour, by the system's dialog with all of its colours open.
///
/// @param color the one shown at first; the chosen one afterwards.
/// @return whether the user confirmed.
bool PideColor(CWnd& dialogo, COLORREF& color);

/// Shows the red, green and blue of a colour, 0 to 255, in three controls of a dialog.
void MuestraColor(CWnd& dialogo, COLORREF color, int rojo, int verde, int azul);

} // namespace Cuadros
