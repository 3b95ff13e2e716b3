#include "cotana/entidad/InfoClasificacion.h"

namespace Cotana {

CInfoClasificacion::CInfoClasificacion(BYTE clasificacion, int puntos, const CString& descripcion)
    : m_Clasificacion(clasificacion), m_Puntos(puntos), m_Descripcion(descripcion) {}

CString CInfoClasificacion::Descripcion(bool conNumero) const {
    if (!conNumero)
        return m_Descripcion;
    CString texto;
    texto.Format(L"%d ", m_Clasificacion);
    return texto + m_Descripcion;
}

} // namespace Cotana
