#pragma once

namespace Cotana {

/// Options of smoothing a triangulated network.
struct CDataSuavizarTIN {
    /// Strength of one smoothing, 0 to 1.
    double m_Factor = 0.5;
    /// Whether the smoothing is repeated: 0 or 1.
    int m_Iterar = 0;
    /// How often it is repeated; counts only while `m_Iterar` is set.
    unsigned int m_Iteraciones = 1;
};

} // namespace Cotana
