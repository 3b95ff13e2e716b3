#include "cotana/triangulacion/DataLimpiarRelieveRangoZ.h"

namespace Cotana {

CDataLimpiarRelieveRangoZ::CDataLimpiarRelieveRangoZ() = default;
CDataLimpiarRelieveRangoZ::CDataLimpiarRelieveRangoZ(const CDataLimpiarRelieveRangoZ&) = default;
CDataLimpiarRelieveRangoZ&
CDataLimpiarRelieveRangoZ::operator=(const CDataLimpiarRelieveRangoZ&) = default;
CDataLimpiarRelieveRangoZ::~CDataLimpiarRelieveRangoZ() = default;

} // namespace Cotana
