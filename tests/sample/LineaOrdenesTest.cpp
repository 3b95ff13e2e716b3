#include "sample/LineaOrdenes.h"

#include "kit/kit.h"

#include <vector>

namespace {

LineaOrdenes Lee(const std::vector<const wchar_t*>& argumentos) {
    return LeeLineaOrdenes(argumentos);
}

} // namespace

TEST(LineaOrdenes, AsksForNothingWhenItIsEmpty) {
    const LineaOrdenes linea = Lee({});
    EXPECT_EQ(linea.carpetaRecorrido, L"");
    EXPECT_EQ(linea.ficheroRejilla, L"");
    EXPECT_EQ(linea.carpetaDibujos, L"");
    EXPECT_EQ(linea.ficheroCodigos, L"");
    EXPECT_EQ(linea.error, L"");
}

TEST(LineaOrdenes, TakesTheTourAndTheCodeTableInEitherOrder) {
    for (const auto& argumentos : std::vector<std::vector<const wchar_t*>>{
             {L"--tour", L"out", L"codes.txt"}, {L"codes.txt", L"--tour", L"out"}}) {
        const LineaOrdenes linea = Lee(argumentos);
        EXPECT_EQ(linea.carpetaRecorrido, L"out");
        EXPECT_EQ(linea.ficheroCodigos, L"codes.txt");
        EXPECT_EQ(linea.error, L"");
    }
}

TEST(LineaOrdenes, TakesAnElevationGridAndTheFolderOfDrawings) {
    const LineaOrdenes linea =
        Lee({L"--grid", L"my hills.asc", L"codes.txt", L"--drawings", L"out"});
    EXPECT_EQ(linea.ficheroRejilla, L"my hills.asc");
    EXPECT_EQ(linea.carpetaDibujos, L"out");
    EXPECT_EQ(linea.ficheroCodigos, L"codes.txt");
    EXPECT_EQ(linea.carpetaRecorrido, L"");
    EXPECT_EQ(linea.error, L"");
}

TEST(LineaOrdenes, SaysWhatIsWrongAndHowItIsUsed) {
    const CString usage = L"; usage: Ejemplo [--tour FOLDER] [--grid ASC-FILE] "
                          L"[--drawings FOLDER] [CODE-TABLE-FILE]";
    EXPECT_EQ(Lee({L"--tour"}).error, L"--tour wants the folder for its results" + usage);
    EXPECT_EQ(Lee({L"--grid", L""}).error, L"--grid wants an elevation grid" + usage);
    EXPECT_EQ(Lee({L""}).error, L"the name of the code table is empty" + usage);
    EXPECT_EQ(Lee({L"--grid"}).error, L"--grid wants an elevation grid" + usage);
    EXPECT_EQ(Lee({L"codes.txt", L"--drawings"}).error,
              L"--drawings wants the folder for drawings" + usage);
    EXPECT_EQ(Lee({L"--help"}).error, L"unknown option --help" + usage);
    EXPECT_EQ(Lee({L"a.txt", L"b.txt"}).error, L"more than one code table: b.txt" + usage);
}
