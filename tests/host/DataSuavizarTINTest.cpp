// The host and the dialog share one plain record: both count on where its fields are.
#include <cotana/triangulacion/DataSuavizarTIN.h>

#include "kit/kit.h"

#include <cstddef>
#include <type_traits>

namespace {

using Cotana::CDataSuavizarTIN;

static_assert(!std::is_polymorphic_v<CDataSuavizarTIN>);

} // namespace

TEST(DataSuavizarTIN, FieldsAreWhereTheHostHasThem) {
    EXPECT_EQ(sizeof(CDataSuavizarTIN), 16U);
    EXPECT_EQ(offsetof(CDataSuavizarTIN, m_Factor), 0U);
    EXPECT_EQ(offsetof(CDataSuavizarTIN, m_Iterar), 8U);
    EXPECT_EQ(offsetof(CDataSuavizarTIN, m_Iteraciones), 12U);
}
