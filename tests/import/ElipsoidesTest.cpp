// A dialog lists the reference ellipsoids by name; a host counts on the numbers behind them.
#include "cuadros/import/Elipsoides.h"

#include "kit/kit.h"

#include <bit>
#include <charconv>
#include <cstdint>
#include <string_view>

namespace {

/// The nearest double to a decimal constant.
std::uint64_t Bits(std::string_view decimal) {
    double valor = 0;
    const auto [fin, error] =
        std::from_chars(decimal.data(), decimal.data() + decimal.size(), valor);
    EXPECT_TRUE(error == std::errc() && fin == decimal.data() + decimal.size()) << decimal;
    return std::bit_cast<std::uint64_t>(valor);
}

struct Fila {
    int indice;
    const wchar_t* nombre;
    std::string_view semieje;
    std::string_view excentricidad2;
    double achatamiento; ///< Inverse of the flattening as it was published; 0 for a sphere.
};

constexpr Fila Filas[] = {
    {-1, L"Definido por el usuario", "0.0", "0.0", 0},
    {1, L"ATS-77", "6378135.0", "0.006694385", 298.257},
    {2, L"Airy", "6377563.396", "0.00667054", 299.3249646},
    {3, L"Airy Modificado", "6377340.189", "0.00667054", 299.3249646},
    {4, L"Australian National", "6378160.0", "0.006694542", 298.25},
    {5, L"Beijing-54", "6378245.0", "0.006693422", 298.3},
    {6, L"Bessel 1841", "6377397.155", "0.006674372", 299.1528128},
    {7, L"Bessel 1841 (Namibia)", "6377484.0", "0.006674372", 299.1528128},
    {8, L"Clarke 1866", "6378206.4", "0.006768658", 294.9786982},
    {9, L"Clarke 1880", "6378249.145", "0.006803511", 293.465},
    {10, L"Everest", "6377276.345", "0.006637847", 300.8017},
    {11, L"Everest Brunei/E.Malasia", "6377298.556", "0.006637847", 300.8017},
    {12, L"Everest W.Malasia/Singapur", "6377304.063", "0.006637847", 300.8017},
    {13, L"Fischer 1960 (Mercury)", "6378166.0", "0.006693422", 298.3},
    {14, L"Fischer 1960 (Sur de Asia)", "6378155.0", "0.006693422", 298.3},
    {15, L"Fischer 1968", "6378150.0", "0.006693422", 298.3},
    {16, L"GRS 1967", "6378160.0", "0.006694605", 298.247167427},
    {17, L"GRS 1980", "6378137.0", "0.00669438", 298.257222101},
    {18, L"Helmert 1906", "6378200.0", "0.006693422", 298.3},
    {19, L"Hough 1956", "6378270.0", "0.00672267", 297},
    {20, L"Internacional (Hayford)", "6378388.0", "0.00672267", 297},
    {21, L"Krassowski", "6378245.0", "0.006693422", 298.3},
    {22, L"Sud-Americano 1969", "6378160.0", "0.006694542", 298.25},
    {23, L"WGS 60", "6378165.0", "0.006693422", 298.3},
    {24, L"WGS 66", "6378145.0", "0.006694542", 298.25},
    {25, L"WGS-72", "6378135.0", "0.006694318", 298.26},
    {26, L"WGS-84", "6378137.0", "0.00669438", 298.257223563},
    {27, L"Xi'an-80", "6378140.0", "0.006694385", 298.257},
};

/// What a static object of another source finds, which may be built before the table's own.
const CString nombreAlCargar = Cuadros::Elipsoides()[26].GetNombre();

} // namespace

TEST(Elipsoides, AreTheseToTheLastBit) {
    ASSERT_EQ(Cuadros::Elipsoides().size(), std::size(Filas));
    for (std::size_t i = 0; i < std::size(Filas); ++i) {
        const Cotana::CElipsoide& elipsoide = Cuadros::Elipsoides()[i];
        const Fila& fila = Filas[i];
        EXPECT_EQ(elipsoide.GetIndice(), fila.indice) << i;
        EXPECT_EQ(elipsoide.GetNombre(), fila.nombre) << i;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(elipsoide.GetSemieje()), Bits(fila.semieje)) << i;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(elipsoide.GetExcentricidad2()),
                  Bits(fila.excentricidad2))
            << i;
    }
}

TEST(Elipsoides, HaveTheEccentricityOfTheirFlatteningToNineDecimals) {
    for (std::size_t i = 1; i < std::size(Filas); ++i) {
        const double f = 1 / Filas[i].achatamiento;
        EXPECT_NEAR(Cuadros::Elipsoides()[i].GetExcentricidad2(), f * (2 - f), 5e-10) << i;
    }
}

TEST(Elipsoides, AreThereForStaticObjects) {
    EXPECT_EQ(nombreAlCargar, L"WGS-84");
}

TEST(Elipsoides, AreBuiltOnce) {
    EXPECT_EQ(&Cuadros::Elipsoides(), &Cuadros::Elipsoides());
}
