// A host tells where a terrain lies by its extents: two corners, each a place with a code.
#include <cotana/entidad/Maximas.h>

#include "kit/kit.h"

namespace {

using Cotana::CCoor3D;
using Cotana::CMaximas;

} // namespace

TEST(Coor3D, StartsAtZero) {
    const CCoor3D<double> real;
    EXPECT_EQ(real.m_X, 0);
    EXPECT_EQ(real.m_Y, 0);
    EXPECT_EQ(real.m_Z, 0);
    EXPECT_EQ(real.m_Codigo, 0);
    const CCoor3D<int> entera;
    EXPECT_EQ(entera.m_X, 0);
    EXPECT_EQ(entera.m_Y, 0);
    EXPECT_EQ(entera.m_Z, 0);
    EXPECT_EQ(entera.m_Codigo, 0);
}

TEST(Coor3D, TakesItsPlaceAndItsCode) {
    const CCoor3D<double> real(1.5, -2.25, 1e300, -7);
    EXPECT_EQ(real.m_X, 1.5);
    EXPECT_EQ(real.m_Y, -2.25);
    EXPECT_EQ(real.m_Z, 1e300);
    EXPECT_EQ(real.m_Codigo, -7);
    const CCoor3D<int> entera(1, 2, 3, 4);
    EXPECT_EQ(entera.m_X, 1);
    EXPECT_EQ(entera.m_Y, 2);
    EXPECT_EQ(entera.m_Z, 3);
    EXPECT_EQ(entera.m_Codigo, 4);
}

TEST(Maximas, HaveTwoCornersAtZero) {
    const CMaximas<double> extension;
    for (const CCoor3D<double>& esquina : {extension.m_Maximo, extension.m_Minimo}) {
        EXPECT_EQ(esquina.m_X, 0);
        EXPECT_EQ(esquina.m_Y, 0);
        EXPECT_EQ(esquina.m_Z, 0);
        EXPECT_EQ(esquina.m_Codigo, 0);
    }
}

TEST(Maximas, BeginWithTheMaximum) {
    const CMaximas<int> extension;
    EXPECT_LT(&extension.m_Maximo, &extension.m_Minimo);
}
