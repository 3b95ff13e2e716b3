#pragma once

namespace Cotana {

/// A place in space, with the code of what is there.
template <class T>
class CCoor3D {
public:
    /// Zero in every axis, and in the code.
    CCoor3D() = default;
    CCoor3D(T x, T y, T z, int codigo) : m_X(x), m_Y(y), m_Z(z), m_Codigo(codigo) {}

    T m_X{};
    T m_Y{};
    T m_Z{};
    int m_Codigo = 0;
};

} // namespace Cotana
