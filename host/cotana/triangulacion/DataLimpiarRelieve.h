#pragma once

#include "cotana/Exporta.h"

namespace Cotana {

/// Options of cleaning a terrain model of points that stand out from their surroundings.
class COTANA_API CDataLimpiarRelieve {
public:
    CDataLimpiarRelieve();
    CDataLimpiarRelieve(const CDataLimpiarRelieve&);
    CDataLimpiarRelieve& operator=(const CDataLimpiarRelieve&);
    virtual ~CDataLimpiarRelieve();

    /// Size of the surroundings that a point is compared with, in metres.
    double m_ValorA = 5.0;
    /// How far a point may stand out from them, in metres.
    double m_ValorB = 0.5;
};

} // namespace Cotana
