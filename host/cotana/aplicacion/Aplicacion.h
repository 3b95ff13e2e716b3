#pragma once

#include <afxwin.h>

#include "cotana/Exporta.h"

class CDocTemplate;

namespace Cotana {

/// The host's application object: what the dialogs ask of it beyond `CWinApp`.
class COTANA_API CAplicacion : public CWinApp {
    DECLARE_DYNAMIC(CAplicacion)

public:
    /// @param nombre name of the application; null takes the name of its file.
    explicit CAplicacion(LPCTSTR nombre = nullptr);
    ~CAplicacion() override;

    /// Asks the user for the name of a file, or of several.
    ///
    /// @param nombre    the name shown at first; holds the chosen one afterwards. With
    ///                  `OFN_ALLOWMULTISELECT`, all chosen names with a blank between them, each
    ///                  in double quotes when it holds a blank or a byte-order mark. Untouched when
    ///                  the user cancels.
    /// @param titulo    number of the string shown as title.
    /// @param opciones  flags of Windows' `OPENFILENAME` (`OFN_*`).
    /// @param abrir     TRUE asks for a file to open, FALSE for one to save.
    /// @param plantilla the caller's document template, whose file filters are offered; null, or
    ///                  pointing at null, offers every file.
    /// @param clase     kind of file, of the application's own counting; 0 is none in particular.
    /// @param reservado null.
    /// @return nonzero when the user confirmed.
    virtual BOOL PideFichero(CString& nombre, UINT titulo, DWORD opciones, BOOL abrir,
                             CDocTemplate** plantilla, int clase, void* reservado);

    /// The template of the document in which the user works; null when there is none.
    virtual CDocTemplate* PlantillaActual() const;
};

} // namespace Cotana
