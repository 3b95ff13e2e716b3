#pragma once

namespace Cotana {

/// How what lies along a profile is projected: two choices of which not both are the first.
struct CDataTipoProyeccion {
    /// First choice, counted from 0: of two.
    int m_Proyeccion1 = 0;
    /// Second choice, counted from 0: of three.
    int m_Proyeccion2 = 0;
};

} // namespace Cotana
