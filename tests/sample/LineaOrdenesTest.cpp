#include "sample/LineaOrdenes.h"

#include "kit/kit.h"

#include <vector>

namespace {

LineaOrdenes Lee(const std::vector<const wchar_t*>& palabras) {
    return LeeLineaOrdenes(palabras, L"Ejemplo");
}

} // namespace

TEST(LineaOrdenes, AsksForNothingWhenItIsEmpty) {
    const LineaOrdenes linea = Lee({});
    EXPECT_EQ(linea.ficheroRejilla, L"");
    EXPECT_EQ(linea.ficheroTesela, L"");
    EXPECT_EQ(linea.ficheroClasificaciones, L"");
    EXPECT_EQ(linea.carpetaDibujos, L"");
    EXPECT_EQ(linea.ficheroCodigos, L"");
    EXPECT_EQ(linea.error, L"");
}

TEST(LineaOrdenes, TakesTheCodeTableBeforeAndBehindOptions) {
    for (const auto& palabras : std::vector<std::vector<const wchar_t*>>{
             {L"--drawings", L"out", L"codes.txt"}, {L"codes.txt", L"--drawings", L"out"}}) {
        const LineaOrdenes linea = Lee(palabras);
        EXPECT_EQ(linea.carpetaDibujos, L"out");
        EXPECT_EQ(linea.ficheroCodigos, L"codes.txt");
        EXPECT_EQ(linea.error, L"");
    }
}

TEST(LineaOrdenes, TakesEachFileAndTheFolder) {
    const LineaOrdenes linea =
        Lee({L"--grid", L"my hills.asc", L"--tile", L"w.dem", L"--classifications", L"cloud.txt",
             L"codes.txt", L"--drawings", L"out"});
    EXPECT_EQ(linea.ficheroRejilla, L"my hills.asc");
    EXPECT_EQ(linea.ficheroTesela, L"w.dem");
    EXPECT_EQ(linea.ficheroClasificaciones, L"cloud.txt");
    EXPECT_EQ(linea.carpetaDibujos, L"out");
    EXPECT_EQ(linea.ficheroCodigos, L"codes.txt");
    EXPECT_EQ(linea.error, L"");
}

TEST(LineaOrdenes, SaysWhatIsWrongAndHowItIsUsed) {
    const CString usage = L"; usage: Ejemplo [--grid ASC-FILE] [--tile DEM-FILE] "
                          L"[--classifications FILE] [--drawings FOLDER] [CODE-TABLE-FILE]";
    EXPECT_EQ(Lee({L"--grid", L""}).error, L"--grid wants an elevation grid" + usage);
    EXPECT_EQ(Lee({L"--tile"}).error, L"--tile wants a GTOPO30 tile" + usage);
    EXPECT_EQ(Lee({L"--classifications"}).error,
              L"--classifications wants a list of classifications" + usage);
    EXPECT_EQ(Lee({L"codes.txt", L"--drawings"}).error,
              L"--drawings wants the folder for drawings" + usage);
    EXPECT_EQ(Lee({L""}).error, L"the name of the code table is empty" + usage);
    EXPECT_EQ(Lee({L"--help"}).error, L"unknown option --help" + usage);
    EXPECT_EQ(Lee({L"a.txt", L"b.txt"}).error, L"more than one code table: b.txt" + usage);
}

TEST(LineaOrdenes, AnOptionIsNoValueOfAnother) {
    for (const wchar_t* palabra : {L"--drawings", L"--grid", L"--help", L"-"})
        EXPECT_EQ(
            Lee({L"--grid", palabra, L"a.asc"}).error.Find(L"--grid wants an elevation grid;"), 0);
}

TEST(LineaOrdenes, AnOptionIsGivenOnce) {
    EXPECT_EQ(Lee({L"--grid", L"a.asc", L"--grid", L"a.asc"}).error.Find(L"--grid is given twice;"),
              0);
    EXPECT_EQ(Lee({L"--drawings", L"a", L"c.txt", L"--drawings"})
                  .error.Find(L"--drawings is given twice;"),
              0);
}

TEST(LineaOrdenes, NamesTheProgramThatIsUsed) {
    EXPECT_EQ(LeeLineaOrdenes(std::vector<const wchar_t*>{L"--tour"}, L"Recorrido FOLDER").error,
              L"unknown option --tour" + Uso(L"Recorrido FOLDER"));
    EXPECT_EQ(Uso(L"Recorrido FOLDER").Find(L"; usage: Recorrido FOLDER [--grid ASC-FILE] "), 0);
}
