#include "cotana/topografia/Elipsoide.h"

namespace Cotana {

CElipsoide::CElipsoide() = default;

CElipsoide::CElipsoide(int indice, const CString& nombre, double semieje, double excentricidad2)
    : m_Indice(indice), m_Nombre(nombre), m_Semieje(semieje), m_Excentricidad2(excentricidad2) {}

} // namespace Cotana
