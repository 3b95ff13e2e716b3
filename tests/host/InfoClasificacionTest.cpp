// A dialog shows the classifications that the host found in a cloud of points.
#include <cotana/entidad/InfoClasificacion.h>

#include "kit/kit.h"

#include <limits>

namespace {

using Cotana::CInfoClasificacion;

} // namespace

TEST(InfoClasificacion, KeepsTheWholeRangeOfItsNumbers) {
    const CInfoClasificacion primera(0, std::numeric_limits<int>::min(), L"");
    EXPECT_EQ(primera.GetClasificacion(), 0);
    EXPECT_EQ(primera.GetPuntos(), std::numeric_limits<int>::min());
    const CInfoClasificacion ultima(255, std::numeric_limits<int>::max(), L"");
    EXPECT_EQ(ultima.GetClasificacion(), 255);
    EXPECT_EQ(ultima.GetPuntos(), std::numeric_limits<int>::max());
}

TEST(InfoClasificacion, DescribesItselfWithOrWithoutItsNumber) {
    const CInfoClasificacion clasificacion(255, 1, L"Vegetación alta");
    EXPECT_EQ(clasificacion.Descripcion(false), L"Vegetación alta");
    EXPECT_EQ(clasificacion.Descripcion(true), L"255 Vegetación alta");
    EXPECT_EQ(CInfoClasificacion(0, 1, L"").Descripcion(true), L"0 ");
}

TEST(InfoClasificacion, StartsEmpty) {
    const CInfoClasificacion clasificacion;
    EXPECT_EQ(clasificacion.GetClasificacion(), 0);
    EXPECT_EQ(clasificacion.GetPuntos(), 0);
    EXPECT_TRUE(clasificacion.Descripcion(false).IsEmpty());
}
