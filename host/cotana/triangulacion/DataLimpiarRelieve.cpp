#include "cotana/triangulacion/DataLimpiarRelieve.h"

namespace Cotana {

CDataLimpiarRelieve::CDataLimpiarRelieve() = default;
CDataLimpiarRelieve::CDataLimpiarRelieve(const CDataLimpiarRelieve&) = default;
CDataLimpiarRelieve& CDataLimpiarRelieve::operator=(const CDataLimpiarRelieve&) = default;
CDataLimpiarRelieve::~CDataLimpiarRelieve() = default;

} // namespace Cotana
