#include "cotana/triangulacion/DataTriangulacion.h"

namespace Cotana {

CDataTriangulacion::CDataTriangulacion() = default;
CDataTriangulacion::CDataTriangulacion(const CDataTriangulacion&) = default;
CDataTriangulacion& CDataTriangulacion::operator=(const CDataTriangulacion&) = default;
CDataTriangulacion::~CDataTriangulacion() = default;

} // namespace Cotana
