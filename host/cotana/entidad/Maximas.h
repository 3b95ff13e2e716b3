#pragma once

#include "cotana/entidad/Coor3D.h"

namespace Cotana {

/// Extents: the corner where every coordinate is highest and the one where it is lowest.
template <class T>
class CMaximas {
public:
    CCoor3D<T> m_Maximo;
    CCoor3D<T> m_Minimo;
};

} // namespace Cotana
