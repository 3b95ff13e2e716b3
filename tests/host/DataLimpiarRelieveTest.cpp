// The host and the two cleaning dialogs share their records: all count on the order of the fields.
#include <cotana/triangulacion/DataLimpiarRelieve.h>
#include <cotana/triangulacion/DataLimpiarRelieveRangoZ.h>

#include "kit/kit.h"

#include <type_traits>

namespace {

using Cotana::CDataLimpiarRelieve;
using Cotana::CDataLimpiarRelieveRangoZ;

static_assert(std::is_polymorphic_v<CDataLimpiarRelieve>);
static_assert(std::is_polymorphic_v<CDataLimpiarRelieveRangoZ>);

} // namespace

TEST(DataLimpiarRelieve, FieldsFollowEachOtherInTheirOrder) {
    const CDataLimpiarRelieve data;
    EXPECT_LT(&data.m_ValorA, &data.m_ValorB);
    const CDataLimpiarRelieveRangoZ rango;
    EXPECT_LT(&rango.m_ValorA, &rango.m_ValorB);
}
