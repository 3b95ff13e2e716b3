#pragma once

#include <afx.h>

#include "cotana/Exporta.h"

namespace Cotana {

/// One classification of the points of a cloud (ground, vegetation, buildings...), with how many
/// points have it.
class COTANA_API CInfoClasificacion {
public:
    /// @param clasificacion number of the classification, 0 to 255.
    /// @param puntos        how many points have it.
    /// @param descripcion   what it stands for.
    explicit CInfoClasificacion(BYTE clasificacion = 0, int puntos = 0,
                                const CString& descripcion = CString());

    BYTE GetClasificacion() const { return m_Clasificacion; }
    int GetPuntos() const { return m_Puntos; }

    /// What the classification stands for; with `conNumero` its number and a blank come first.
    CString Descripcion(bool conNumero) const;

private:
    BYTE m_Clasificacion;
    int m_Puntos;
    CString m_Descripcion;
};

} // namespace Cotana
