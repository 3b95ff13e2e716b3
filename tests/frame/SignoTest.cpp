// A length or a distance that the user typed must be positive: everything up to 1e-7 counts as
// zero.
#include "cuadros/frame/Signo.h"

#include "kit/kit.h"

#include <cmath>
#include <limits>

TEST(Signo, TellsNegativeZeroAndPositive) {
    EXPECT_EQ(Cuadros::Signo(-3.0), -1);
    EXPECT_EQ(Cuadros::Signo(0.0), 0);
    EXPECT_EQ(Cuadros::Signo(3.0), 1);
}

TEST(Signo, BothLimitsAreZero) {
    EXPECT_EQ(Cuadros::Signo(1e-7), 0);
    EXPECT_EQ(Cuadros::Signo(-1e-7), 0);
    EXPECT_EQ(Cuadros::Signo(std::nextafter(1e-7, 1)), 1);
    EXPECT_EQ(Cuadros::Signo(std::nextafter(-1e-7, -1)), -1);
}

TEST(Signo, NotANumberIsZero) {
    EXPECT_EQ(Cuadros::Signo(std::numeric_limits<double>::quiet_NaN()), 0);
}
