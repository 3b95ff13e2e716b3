#pragma once

#include "cotana/Exporta.h"

namespace Cotana {

/// Options of cleaning a terrain model of points outside a range of elevations.
class COTANA_API CDataLimpiarRelieveRangoZ {
public:
    CDataLimpiarRelieveRangoZ();
    CDataLimpiarRelieveRangoZ(const CDataLimpiarRelieveRangoZ&);
    CDataLimpiarRelieveRangoZ& operator=(const CDataLimpiarRelieveRangoZ&);
    virtual ~CDataLimpiarRelieveRangoZ();

    /// Lowest elevation that stays, in metres.
    double m_ValorA = 0.0;
    /// Highest elevation that stays, in metres.
    double m_ValorB = 9000.0;
};

} // namespace Cotana
