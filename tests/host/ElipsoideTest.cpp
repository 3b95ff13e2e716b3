// A host counts coordinates on a reference ellipsoid, which its users choose by name.
#include <cotana/topografia/Elipsoide.h>

#include "kit/kit.h"

namespace {

using Cotana::CElipsoide;

} // namespace

TEST(Elipsoide, KeepsWhatItIsGiven) {
    const CElipsoide elipsoide(17, L"GRS 1980", 6378137.0, 0.00669438);
    EXPECT_EQ(elipsoide.GetIndice(), 17);
    EXPECT_EQ(elipsoide.GetNombre(), L"GRS 1980");
    EXPECT_EQ(elipsoide.GetSemieje(), 6378137.0);
    EXPECT_EQ(elipsoide.GetExcentricidad2(), 0.00669438);
}

TEST(Elipsoide, IsOfNoTableAtFirst) {
    const CElipsoide elipsoide;
    EXPECT_EQ(elipsoide.GetIndice(), -1);
    EXPECT_TRUE(elipsoide.GetNombre().IsEmpty());
    EXPECT_EQ(elipsoide.GetSemieje(), 0);
    EXPECT_EQ(elipsoide.GetExcentricidad2(), 0);
}

TEST(Elipsoide, IsCopiedWhole) {
    const CElipsoide elipsoide(6, L"Bessel 1841", 6377397.155, 0.006674372);
    CElipsoide copia;
    copia = elipsoide;
    for (const CElipsoide& una : {CElipsoide(elipsoide), copia}) {
        EXPECT_EQ(una.GetIndice(), 6);
        EXPECT_EQ(una.GetNombre(), L"Bessel 1841");
        EXPECT_EQ(una.GetSemieje(), 6377397.155);
        EXPECT_EQ(una.GetExcentricidad2(), 0.006674372);
    }
}
