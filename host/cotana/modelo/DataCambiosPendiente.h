#pragma once

#include <afx.h>

namespace Cotana {

/// Options of drawing where the slope of a triangulated network changes.
struct CDataCambiosPendiente {
    /// Decimals of the labels.
    int m_EnteroCambio = 1;
    /// Code of the lines of either drawing.
    CString m_CadenaCambio;
    /// The smallest change of slope that is drawn, in percent.
    double m_ValorCambio = 10;
    /// Whether the convex changes (ridges) are drawn.
    int m_GenerarDibujo1 = 1;
    /// Whether the concave changes (valleys) are drawn.
    int m_GenerarDibujo2 = 1;
};

} // namespace Cotana
