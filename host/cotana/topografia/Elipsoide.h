#pragma once

#include <afx.h>

#include "cotana/Exporta.h"

namespace Cotana {

/// A reference ellipsoid: the size and the shape of the Earth on which coordinates are counted.
class COTANA_API CElipsoide {
public:
    /// An ellipsoid of no table: index -1, no name, no size.
    CElipsoide();

    /// @param indice         number of the ellipsoid; -1 when the user has defined it.
    /// @param nombre         what it is called.
    /// @param semieje        semi-major axis, in metres.
    /// @param excentricidad2 square of the first eccentricity.
    CElipsoide(int indice, const CString& nombre, double semieje, double excentricidad2);

    int GetIndice() const { return m_Indice; }
    const CString& GetNombre() const { return m_Nombre; }
    double GetSemieje() const { return m_Semieje; } ///< In metres.
    double GetExcentricidad2() const { return m_Excentricidad2; }

private:
    int m_Indice = -1;
    CString m_Nombre;
    double m_Semieje = 0;
    double m_Excentricidad2 = 0;
};

} // namespace Cotana
