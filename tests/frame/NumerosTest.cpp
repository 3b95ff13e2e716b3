// The user types numbers and reads them: the same ones whatever the language of his Windows is.
#include "cuadros/frame/Numeros.h"

#include "kit/kit.h"

#include <clocale>
#include <cmath>
#include <limits>
#include <string>

namespace {

constexpr double Infinito = std::numeric_limits<double>::infinity();
constexpr double NoEsNumero = std::numeric_limits<double>::quiet_NaN();

/// For its life the host has set a locale whose decimal point is a comma.
class ConComa {
public:
    ConComa() { EXPECT_NE(std::setlocale(LC_ALL, "German_Germany.1252"), nullptr); }
    ~ConComa() { std::setlocale(LC_ALL, "C"); }
    ConComa(const ConComa&) = delete;
    ConComa& operator=(const ConComa&) = delete;
};

} // namespace

TEST(Numeros, HaveAsManyDecimalsAsAreAskedFor) {
    EXPECT_EQ(Cuadros::ConDecimales(1234.5678, 2), L"1234.57");
    EXPECT_EQ(Cuadros::ConDecimales(12.34567, 3), L"12.346");
    EXPECT_EQ(Cuadros::ConDecimales(59.96, 1), L"60.0");
    EXPECT_EQ(Cuadros::ConDecimales(-0.5, 3), L"-0.500");
    EXPECT_EQ(Cuadros::ConDecimales(1234.6, 0), L"1235");
    EXPECT_EQ(Cuadros::ConDecimales(0, 2), L"0.00");
}

TEST(Numeros, HaveSixDecimalsWhereTheirCountIsNegative) {
    EXPECT_EQ(Cuadros::ConDecimales(112.34, -1), L"112.340000");
    EXPECT_EQ(Cuadros::ConDecimales(112.34, -128), L"112.340000");
}

TEST(Numeros, HaveNoExponentHoweverLargeOrSmall) {
    EXPECT_EQ(Cuadros::ConDecimales(1e15, 1), L"1000000000000000.0");
    EXPECT_EQ(Cuadros::ConDecimales(1e-15, 6), L"0.000000");
    EXPECT_EQ(Cuadros::ConDecimales(std::ldexp(1, -127), 127).GetLength(), 129);
    const CString mayor = Cuadros::ConDecimales(-std::numeric_limits<double>::max(), 127);
    EXPECT_EQ(mayor.GetLength(), 1 + 309 + 1 + 127);
    EXPECT_EQ(mayor.Left(6), L"-17976");
}

TEST(Numeros, WithoutAValueAreShownAsSuch) {
    EXPECT_EQ(Cuadros::ConDecimales(Infinito, 2), L"inf");
    EXPECT_EQ(Cuadros::ConDecimales(-Infinito, 2), L"-inf");
    EXPECT_EQ(Cuadros::ConDecimales(NoEsNumero, 2), L"nan");
}

TEST(Numeros, AreReadAsFarAsTheyGo) {
    EXPECT_EQ(Cuadros::LeeNumero(L"12.5"), 12.5);
    EXPECT_EQ(Cuadros::LeeNumero(L" \t-3.25m"), -3.25);
    EXPECT_EQ(Cuadros::LeeNumero(L"+7"), 7);
    EXPECT_EQ(Cuadros::LeeNumero(L"1e3"), 1000);
    EXPECT_EQ(Cuadros::LeeNumero(L"0.5 km"), 0.5);
    EXPECT_EQ(Cuadros::LeeNumero(L".5"), 0.5);
    EXPECT_EQ(Cuadros::LeeNumero(L"1,5"), 1);
}

TEST(Numeros, ThatAreNoneReadAsZero) {
    for (const wchar_t* texto : {L"", L"  ", L"abc", L"-", L".", L"m 12", L"--1", L"inf", L"nan"}) {
        EXPECT_EQ(Cuadros::LeeNumero(texto), 0) << kit::utf8(texto);
        EXPECT_EQ(Cuadros::LeeEntero(texto), 0) << kit::utf8(texto);
    }
}

TEST(Numeros, OfWholeUnitsAreDecimalDigits) {
    EXPECT_EQ(Cuadros::Entero(0), L"0");
    EXPECT_EQ(Cuadros::Entero(-9999), L"-9999");
    EXPECT_EQ(Cuadros::Entero(std::numeric_limits<int>::min()), L"-2147483648");
    EXPECT_EQ(Cuadros::LeeEntero(L" -12abc"), -12);
    EXPECT_EQ(Cuadros::LeeEntero(L"2.9"), 2);
    EXPECT_EQ(Cuadros::LeeEntero(L"2147483647"), std::numeric_limits<int>::max());
}

TEST(Numeros, ComeBackFromTheirText) {
    for (const double valor : {0.0, 1.5, -12.346, 1e12, 0.001})
        EXPECT_EQ(Cuadros::LeeNumero(Cuadros::ConDecimales(valor, 3)), valor);
}

TEST(Numeros, HaveAPointWhereTheHostHasAComma) {
    const ConComa coma;
    ASSERT_EQ(std::localeconv()->decimal_point, std::string(","));
    EXPECT_EQ(Cuadros::ConDecimales(1234.5, 2), L"1234.50");
    EXPECT_EQ(Cuadros::LeeNumero(L"1.5"), 1.5);
    EXPECT_EQ(Cuadros::LeeNumero(L"1,5"), 1);
    EXPECT_EQ(Cuadros::Entero(1234567), L"1234567");
    double pixel = 0;
    EXPECT_EQ(Cuadros::LeePixel(L"0.5", pixel, 1024, 1024), L"12.00");
}

// A length or a distance that the user typed must be positive: everything up to 1e-7 counts as
// zero.

TEST(Numeros, AreNegativeZeroOrPositive) {
    EXPECT_EQ(Cuadros::Signo(-3.0), -1);
    EXPECT_EQ(Cuadros::Signo(0.0), 0);
    EXPECT_EQ(Cuadros::Signo(-0.0), 0);
    EXPECT_EQ(Cuadros::Signo(3.0), 1);
    EXPECT_EQ(Cuadros::Signo(-Infinito), -1);
    EXPECT_EQ(Cuadros::Signo(Infinito), 1);
}

TEST(Numeros, AtBothLimitsOfTheToleranceAreZero) {
    EXPECT_EQ(Cuadros::Signo(1e-7), 0);
    EXPECT_EQ(Cuadros::Signo(-1e-7), 0);
    EXPECT_EQ(Cuadros::Signo(std::nextafter(1e-7, 1)), 1);
    EXPECT_EQ(Cuadros::Signo(std::nextafter(-1e-7, -1)), -1);
}

TEST(Numeros, ThatAreNotANumberHaveNoSign) {
    EXPECT_EQ(Cuadros::Signo(NoEsNumero), 0);
}

// While the user types a pixel size, the dialog shows how much memory the image will take.

namespace {

/// What the dialog shows for the text, and the size that it then has.
struct Pixel {
    explicit Pixel(const wchar_t* texto, double alto = 1024, double ancho = 2048)
        : memoria(Cuadros::LeePixel(texto, lado, alto, ancho)) {}

    double lado = -1;
    CString memoria;
};

} // namespace

TEST(Numeros, OfAPixelGiveMegabytesOfThreeBytes) {
    EXPECT_EQ(Pixel(L"1").memoria, L"6.00");
    EXPECT_EQ(Pixel(L"2").memoria, L"1.50");
    EXPECT_EQ(Pixel(L"1", 500, 1000).memoria, L"1.43");
    EXPECT_EQ(Pixel(L"0.1", 1000, 1000).memoria, L"286.10");
    EXPECT_EQ(Pixel(L"1", 0).memoria, L"0.00");
    EXPECT_EQ(Pixel(L"0.25").lado, 0.25);
}

TEST(Numeros, OfANegativePixelLoseTheirSign) {
    EXPECT_EQ(Pixel(L"-2").lado, 2);
    EXPECT_EQ(Pixel(L"-2").memoria, L"1.50");
}

TEST(Numeros, OfAPixelWithinTheToleranceOfZeroGiveADash) {
    for (const wchar_t* texto : {L"0", L"abc", L"", L"0.00000005", L"1e-7", L"-1e-7"})
        EXPECT_EQ(Pixel(texto).memoria, L"-") << kit::utf8(texto);
    EXPECT_EQ(Pixel(L"abc").lado, 0);
    EXPECT_EQ(Pixel(L"0.00000005").lado, 5e-8);
    EXPECT_EQ(Pixel(L"-1e-7").lado, -1e-7);
    constexpr double minimo = 1.1e-7;
    EXPECT_EQ(Pixel(L"1.1e-7", 1024 * minimo, 1024 * minimo).memoria, L"3.00");
    EXPECT_EQ(Pixel(L"-1.1e-7", 1024 * minimo, 1024 * minimo).lado, minimo);
}
