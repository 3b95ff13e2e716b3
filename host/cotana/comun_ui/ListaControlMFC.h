#pragma once

#include <afxcmn.h>

#include "cotana/Exporta.h"

namespace Cotana {

/// The host's list control.
class COTANA_API CListaControlMFC : public CListCtrl {
public:
    /// @param columnas the host's own description of the columns, `cuantas` numbers; the stand-in
    ///                 needs none, and a list that describes its columns itself passes none.
    explicit CListaControlMFC(int* columnas = nullptr, int cuantas = 0);
    ~CListaControlMFC() override;
};

} // namespace Cotana
