// Records of profiles have the type of projection within them, as bytes among their own.
#include <cotana/dibujo/DataTipoProyeccion.h>

#include "kit/kit.h"

#include <cstdint>
#include <type_traits>

namespace {

using Cotana::CDataTipoProyeccion;

static_assert(std::is_trivially_copyable_v<CDataTipoProyeccion>);
static_assert(std::is_same_v<decltype(CDataTipoProyeccion::m_Proyeccion1), std::int32_t>);
static_assert(std::is_same_v<decltype(CDataTipoProyeccion::m_Proyeccion2), std::int32_t>);

} // namespace

TEST(DataTipoProyeccion, IsTwoChoicesInTheirOrderAndNothingElse) {
    const CDataTipoProyeccion data{1, 2};
    EXPECT_EQ(static_cast<const void*>(&data.m_Proyeccion1), &data);
    EXPECT_EQ(&data.m_Proyeccion2, &data.m_Proyeccion1 + 1);
    EXPECT_EQ(sizeof data, 2 * sizeof(int));
    EXPECT_EQ(data.m_Proyeccion1, 1);
    EXPECT_EQ(data.m_Proyeccion2, 2);
}
