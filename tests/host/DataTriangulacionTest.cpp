// The host and the dialog share one record: both count on the types and the order of its fields.
#include <cotana/triangulacion/DataTriangulacion.h>

#include "kit/kit.h"

#include <algorithm>
#include <cstdint>
#include <type_traits>
#include <vector>

namespace {

using Cotana::CDataTriangulacion;

static_assert(std::is_polymorphic_v<CDataTriangulacion>);

template <class Campo>
using CampoDe = Campo CDataTriangulacion::*;
static_assert(std::is_same_v<decltype(&CDataTriangulacion::m_TipoRuptura), CampoDe<std::int32_t>>);
static_assert(std::is_same_v<decltype(&CDataTriangulacion::m_Rupturas), CampoDe<std::int32_t>>);
static_assert(std::is_same_v<decltype(&CDataTriangulacion::m_NoUnirCurvas), CampoDe<std::int32_t>>);

} // namespace

TEST(DataTriangulacion, FieldsFollowEachOtherInTheirOrder) {
    const CDataTriangulacion data;
    const std::vector<const void*> campos = {
        &data.m_LimiteInferior, &data.m_LimiteSuperior, &data.m_DistanciaNoUnir,
        &data.m_ParametroExtra, &data.m_TipoRuptura,    &data.m_Nombre,
        &data.m_Rupturas,       &data.m_NoUnirCurvas,   &data.m_Codigos,
        &data.m_CodigosRuptura, &data.m_CodigosExtra1,  &data.m_CodigosExtra2};
    EXPECT_TRUE(std::ranges::is_sorted(campos));
}
