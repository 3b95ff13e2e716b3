#include "sample/Ficha.h"

#include "kit/kit.h"

using Cotana::CDigiTab;
using Cotana::CElementoDigiTab;
using Cotana::CInfoClasificacion;

TEST(Ficha, ShowsNumbersInTheirShortestForm) {
    EXPECT_EQ(Valor(0.1), L"0.1");
    EXPECT_EQ(Valor(-1000.0), L"-1000");
    EXPECT_EQ(Valor(7), L"7");
}

TEST(Ficha, ShowsNumbersWithoutASignWhole) {
    EXPECT_EQ(Valor(4294967295u), L"4294967295");
}

TEST(Ficha, ShowsTextsInQuotes) {
    EXPECT_EQ(Valor(CString()), L"\"\"");
    EXPECT_EQ(Valor(CString(L"North slope")), L"\"North slope\"");
}

TEST(Ficha, ShowsPlacesAndExtentsWithoutTheirHeights) {
    Cotana::CMaximas<double> extension;
    extension.m_Minimo = {-6, 40.25, 1, 1};
    extension.m_Maximo = {-5, 41, 2, 1};
    EXPECT_EQ(Valor(extension.m_Minimo), L"-6, 40.25");
    EXPECT_EQ(Valor(extension), L"-6 to -5, 40.25 to 41");
}

TEST(Ficha, ShowsTheFirstFiveCodesOfATable) {
    CDigiTab tabla;
    EXPECT_EQ(Valor(tabla), L"0");
    for (const wchar_t* codigo : {L"A", L"B", L"C", L"D", L"E"})
        tabla.Inserta(CElementoDigiTab(codigo), true);
    EXPECT_EQ(Valor(tabla), L"5: A, B, C, D, E");
    tabla.Inserta(CElementoDigiTab(L"F"), true);
    EXPECT_EQ(Valor(tabla), L"6: A, B, C, D, E, ...");
}

TEST(Ficha, ShowsTheFirstFiveOfEveryList) {
    EXPECT_EQ(Valor(std::vector<int>()), L"0");
    EXPECT_EQ(Valor(std::vector<int>{3, -1}), L"2: 3, -1");
    EXPECT_EQ(Valor(std::vector<int>{1, 2, 3, 4, 5, 6}), L"6: 1, 2, 3, 4, 5, ...");
}

TEST(Ficha, ShowsClassificationsByTheirNumber) {
    EXPECT_EQ(Valor(std::vector{CInfoClasificacion(2), CInfoClasificacion(255)}), L"2: 2, 255");
}

TEST(Ficha, ShowsFilesWithoutTheirFolder) {
    EXPECT_EQ(Valor(std::vector<CString>{L"C:\\survey\\a b.xyz", L"c.xyz"}), L"2: a b.xyz, c.xyz");
}

TEST(Ficha, MarksWhatHasChanged) {
    const Ficha antes = {{L"m_Nombre", L"\"a\""}, {L"m_N", L"1"}};
    const Ficha despues = {{L"m_Nombre", L"\"b\""}, {L"m_N", L"1"}};
    EXPECT_EQ(AntesYDespues(antes, despues), L"  * m_Nombre  \"a\"  -> \"b\"\n"
                                             L"    m_N       1\n");
}

TEST(Ficha, IsWrittenInUtf8) {
    EXPECT_EQ(Utf8(L""), "");
    EXPECT_EQ(Utf8(L"\u00D1 \u20AC"), "\xC3\x91 \xE2\x82\xAC");
}
