#include "sample/terrain/AscGridFile.h"

#include "kit/kit.h"

#include <cmath>
#include <string>
#include <vector>

#include "Refusals.h"
#include "TemporaryFile.h"

namespace {

constexpr Refusals Refused(ParseAscGrid, L"hills.asc");

/// The elevations of a grid in the order of the file.
std::vector<double> Elevations(const ElevationGrid& grid) {
    std::vector<double> all;
    for (int row = 0; row < grid.Rows(); ++row) {
        for (int column = 0; column < grid.Columns(); ++column)
            all.push_back(grid.Elevation(column, row));
    }
    return all;
}

const std::string header = "ncols 3\nnrows 2\nxllcorner 100\nyllcorner 200\ncellsize 10\n";

} // namespace

TEST(AscGridFile, ReadsTheRowsFromTheNorth) {
    ElevationGrid grid;
    EXPECT_EQ(Refused(header + "NODATA_value -1\n1 2 3\n4.5 -5.25 -1\n", grid), "");
    ASSERT_EQ(grid.Columns(), 3);
    ASSERT_EQ(grid.Rows(), 2);
    EXPECT_EQ(grid.CellSize(), 10);
    EXPECT_EQ(grid.Elevation(0, 0), 1);
    EXPECT_EQ(grid.Elevation(2, 0), 3);
    EXPECT_EQ(grid.Elevation(0, 1), 4.5);
    EXPECT_TRUE(std::isnan(grid.Elevation(2, 1)));
    EXPECT_EQ(grid.Lowest(), -5.25);
    EXPECT_EQ(grid.Highest(), 4.5);
    EXPECT_EQ(grid.At(0, 1), (MapPoint{105, 205})); // the south-west
    EXPECT_EQ(grid.At(2, 0), (MapPoint{125, 215}));
}

TEST(AscGridFile, ACornerIsHalfACellOffTheCentre) {
    const struct {
        const char* keys;
        MapPoint origin;
    } cases[] = {
        {"xllcorner 100 yllcorner 200", {105, 205}},
        {"xllcenter 100 yllcenter 200", {100, 200}},
        {"xllcorner 100 yllcenter 200", {105, 200}},
        {"yllcorner 200 xllcenter 100", {100, 205}},
    };
    for (const auto& one : cases) {
        ElevationGrid grid;
        EXPECT_EQ(
            Refused(std::string("ncols 2 nrows 2 cellsize 10 ") + one.keys + " 7 7 7 7", grid), "");
        EXPECT_EQ(grid.At(0, 1), one.origin) << one.keys;
    }
}

TEST(AscGridFile, TheHeaderIsInAnyOrderAndCase) {
    ElevationGrid grid;
    EXPECT_EQ(Refused("CELLSIZE 2.5e1\r\nNoData_Value 0\r\nYLLCENTER -2E2\r\n\r\nNRows 2\r\n"
                      "\tNCOLS\t+2 \r\nXllCenter +1.5\r\n0 8\r\n0 8\r\n",
                      grid),
              "");
    EXPECT_EQ(grid.CellSize(), 25);
    EXPECT_EQ(grid.At(0, 1), (MapPoint{1.5, -200}));
    EXPECT_TRUE(std::isnan(grid.Elevation(0, 0)));
    EXPECT_EQ(grid.Elevation(1, 0), 8);
}

TEST(AscGridFile, WithoutAMarkerMissingIsMinus9999) {
    ElevationGrid grid;
    EXPECT_EQ(Refused(header + "-9999 -9999.0 -9.999e3 -9998 0 1", grid), "");
    EXPECT_TRUE(std::isnan(grid.Elevation(0, 0)));
    EXPECT_TRUE(std::isnan(grid.Elevation(1, 0)));
    EXPECT_TRUE(std::isnan(grid.Elevation(2, 0)));
    EXPECT_EQ(grid.Lowest(), -9998);
}

TEST(AscGridFile, AMarkerMayBeTheLeastOfAllNumbers) {
    ElevationGrid grid;
    EXPECT_EQ(Refused(header + "NODATA_value -3.4028234663852886e+38\n"
                               "-3.4028234663852886e+38 2 3 4 5 -9999",
                      grid),
              "");
    EXPECT_TRUE(std::isnan(grid.Elevation(0, 0)));
    EXPECT_EQ(grid.Elevation(2, 1), -9999);
}

TEST(AscGridFile, AMarkerMayBeNoNumber) {
    ElevationGrid grid;
    ASSERT_EQ(Refused(header + "NODATA_value nan\nNaN 2 3 4 -nan -9999", grid), "");
    EXPECT_TRUE(std::isnan(grid.Elevation(0, 0)));
    EXPECT_TRUE(std::isnan(grid.Elevation(1, 1)));
    EXPECT_EQ(grid.Lowest(), -9999);
    EXPECT_EQ(grid.Highest(), 4);
}

TEST(AscGridFile, CellsMayBeAsSmallAsCoordinatesCanTell) {
    ElevationGrid grid;
    EXPECT_EQ(Refused("ncols 2 nrows 2 xllcorner 0 yllcorner 0 cellsize 1e-6 1 2 3 4", grid), "");
    EXPECT_EQ(grid.CellSize(), 1e-6);
    EXPECT_EQ(Refused("ncols 2 nrows 2 xllcorner 0 yllcorner 0 cellsize 1e9 1 2 3 4", grid), "");
}

TEST(AscGridFile, LinesAreNoMoreThanBlanks) {
    const std::vector<double> elevations = {1, 2, 3, 4, 5, 6};
    for (const char* text : {"1 2 3\n4 5 6\n", "1 2 3 4 5 6", "1\n2\n3\n4\n5\n6\n\n\n",
                             "\n1 2\n3 4\r\n\r\n  5\t6  ", "1 2 3\n4 5 6\n\t \n"}) {
        ElevationGrid grid;
        EXPECT_EQ(Refused(header + text, grid), "") << text;
        EXPECT_EQ(Elevations(grid), elevations) << text;
    }
}

TEST(AscGridFile, NumbersHaveFractionsAndPowersOfTen) {
    ElevationGrid grid;
    EXPECT_EQ(Refused(header + "1.5e2 -.25E+1 +3. 4e-3 0.1 1e-999", grid), "");
    EXPECT_EQ(Elevations(grid), (std::vector<double>{150, -2.5, 3, 0.004, 0.1, 0}));
}

TEST(AscGridFile, TakesAByteOrderMark) {
    EXPECT_EQ(Refused("\xEF\xBB\xBF" + header + "1 2 3 4 5 6"), "");
}

TEST(AscGridFile, NamesTheLineAndWhatIsWrong) {
    const auto with = [](const char* key, const char* value) {
        std::string text = header;
        const size_t start = text.find(key);
        return text.replace(start, text.find('\n', start) - start, value) + "1 2 3 4 5 6\n";
    };
    const std::string longWord(101, '1');
    const struct {
        std::string bytes;
        const char* refusal;
    } cases[] = {
        {"", "hills.asc(1): the file ends before the first elevation"},
        {header, "hills.asc(5): the file ends before the first elevation"},
        {header + "\n\n", "hills.asc(5): the file ends before the first elevation"},
        {"ncols", "hills.asc(1): the file ends before the first elevation"},
        {"1 2 3", "hills.asc(1): the header lacks ncols"},
        {with("ncols", ""), "hills.asc(6): the header lacks ncols"},
        {with("nrows", ""), "hills.asc(6): the header lacks nrows"},
        {with("xll", ""), "hills.asc(6): the header lacks xllcorner or xllcenter"},
        {with("yll", ""), "hills.asc(6): the header lacks yllcorner or yllcenter"},
        {with("cellsize", ""), "hills.asc(6): the header lacks cellsize"},
        {with("nrows", "ncols 3"), "hills.asc(2): ncols is already given in line 1"},
        {with("yll", "XLLCENTER 5"), "hills.asc(4): xllcenter is already given in line 3"},
        {header + "nodata_value 1\nNODATA_VALUE 1\n",
         "hills.asc(7): nodata_value is already given in line 6"},
        {with("xll", "xllcentre 3"), "hills.asc(3): the header key is unknown: xllcentre"},
        {with("ncols", "# hills"), "hills.asc(1): the header key is unknown: #"},
        {with("ncols", "ncols nrows 2"), "hills.asc(1): ncols is not a whole number: nrows"},
        {with("ncols", "ncols 3.5"), "hills.asc(1): ncols is not a whole number: 3.5"},
        {with("ncols", "ncols +-3"), "hills.asc(1): ncols is not a whole number: +-3"},
        {with("ncols", "ncols +"), "hills.asc(1): ncols is not a whole number: +"},
        {with("ncols", "ncols 1"), "hills.asc(1): ncols is below 2: 1"},
        {with("nrows", "nrows -2"), "hills.asc(2): nrows is below 2: -2"},
        {with("nrows", "nrows 100000001"), "hills.asc(2): nrows is above 100000000: 100000001"},
        {with("nrows", "nrows 99999999999"), "hills.asc(2): nrows is above 100000000: 99999999999"},
        {with("nrows", "nrows -99999999999"), "hills.asc(2): nrows is below 2: -99999999999"},
        {with("nrows", "nrows 33333334"),
         "hills.asc(6): the grid has more than 100000000 elevations: 33333334 rows of 3"},
        {with("cellsize", "cellsize 0"), "hills.asc(5): cellsize is below 0.000001: 0"},
        {with("cellsize", "cellsize 9e-7"), "hills.asc(5): cellsize is below 0.000001: 9e-7"},
        {with("cellsize", "cellsize -1"), "hills.asc(5): cellsize is below 0.000001: -1"},
        {with("cellsize", "cellsize 1.1e9"), "hills.asc(5): cellsize is beyond 1000000000: 1.1e9"},
        {with("cellsize", "dx 10"), "hills.asc(5): the header key is unknown: dx"},
        {with("cellsize", "cellsize ten"), "hills.asc(5): cellsize is not a number: ten"},
        {with("cellsize", "cellsize inf"), "hills.asc(5): cellsize is not a finite number: inf"},
        {with("xll", "xllcorner 1e10"), "hills.asc(3): xllcorner is beyond 1000000000: 1e10"},
        {with("yll", "yllcenter\n-1e10"), "hills.asc(5): yllcenter is beyond 1000000000: -1e10"},
        {header + "NODATA_value inf", "hills.asc(6): nodata_value is not a finite number: inf"},
        {header + "NODATA_value nan\n1 inf",
         "hills.asc(7): the elevation in row 1, column 2 is not a finite number: inf"},
        {header + "nan 2 3",
         "hills.asc(6): the elevation in row 1, column 1 is not a finite number: nan"},
        {header + "inf 2 3",
         "hills.asc(6): the elevation in row 1, column 1 is not a finite number: inf"},
        {header + "1 2 x", "hills.asc(6): the elevation in row 1, column 3 is not a number: x"},
        {header + "1 2 3\n4,5 6",
         "hills.asc(7): the elevation in row 2, column 1 is not a number: 4,5"},
        {header + "1 2 3\n4 5.6.7",
         "hills.asc(7): the elevation in row 2, column 2 is not a number: 5.6.7"},
        {header + "1 2 0x10",
         "hills.asc(6): the elevation in row 1, column 3 is not a number: 0x10"},
        {header + "1 2 +-3", "hills.asc(6): the elevation in row 1, column 3 is not a number: +-3"},
        {header + "1 2 +", "hills.asc(6): the elevation in row 1, column 3 is not a number: +"},
        {header + "1 2 3\xC3\xB1\n",
         "hills.asc(6): the elevation in row 1, column 3 is not a number: 3??"},
        {header + "1\n2\nnan",
         "hills.asc(8): the elevation in row 1, column 3 is not a finite number: nan"},
        {header + "1 -inf",
         "hills.asc(6): the elevation in row 1, column 2 is not a finite number: -inf"},
        {header + "1 1e999",
         "hills.asc(6): the elevation in row 1, column 2 is not a finite number: 1e999"},
        {header + "1 -3.4e38",
         "hills.asc(6): the elevation in row 1, column 2 is beyond 1000000000: -3.4e38"},
        {header + "1 2 3\n4 5\n",
         "hills.asc(7): the file ends before row 2, column 3, of 2 rows of 3"},
        {header + "1 2 3\n4 5 6\n7", "hills.asc(8): there are more elevations than 2 rows of 3"},
        {header + "1 2 3\n4 5 6\nend", "hills.asc(8): there are more elevations than 2 rows of 3"},
        {header + "-9999 -9999 -9999 -9999 -9999 -9999", "hills.asc: every elevation is missing"},
        {header + std::string("1 2\0", 4), "hills.asc(6): this is not a text file"},
        {std::string("n\0c\0", 4), "hills.asc(1): this is not a text file"},
        {header + "1 2 \x07", "hills.asc(6): there is a control character in the line"},
        {header + "1 2\n" + longWord, "hills.asc(7): there is a word of more than 100 characters"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Refused(one.bytes), one.refusal);
}

TEST(AscGridFile, AWordMayBeAsLongAsNumbersEverAre) {
    ElevationGrid grid;
    EXPECT_EQ(Refused(header + "1 2 3 4 5 0." + std::string(97, '0') + "1", grid), "");
    EXPECT_NEAR(grid.Elevation(2, 1) * 1e98, 1, 1e-12);
}

TEST(AscGridFile, ARefusedFileLeavesTheGridAsItWas) {
    ElevationGrid grid(2, 5, {0, 0}, {1, 2, 3, 4});
    EXPECT_NE(Refused(header + "1 2 3", grid), "");
    EXPECT_EQ(grid.Rows(), 2);
    EXPECT_EQ(grid.Highest(), 4);
}

// Longer than the blocks that it is read in, and all in one line.
TEST(AscGridFile, ReadsALineOfAnyLength) {
    std::string text = "ncols 300 nrows 200 xllcorner 0 yllcorner 0 cellsize 1";
    for (int number = 0; number < 60000; ++number)
        text += " " + std::to_string(number) + ".5";
    const TemporaryFile file(text);
    ElevationGrid grid;
    EXPECT_EQ(ReadAscGridFile(file.Name(), grid), L"");
    ASSERT_EQ(grid.Rows(), 200);
    std::vector<double> elevations;
    for (int number = 0; number < 60000; ++number)
        elevations.push_back(number + 0.5);
    EXPECT_EQ(Elevations(grid), elevations);

    const TemporaryFile longer(text + "\n\n 1");
    EXPECT_EQ(ReadAscGridFile(longer.Name(), grid),
              CString(longer.Name()) + L"(3): there are more elevations than 200 rows of 300");
}

TEST(AscGridFile, AFileThatCannotBeReadIsRefusedByName) {
    ElevationGrid grid;
    EXPECT_EQ(ReadAscGridFile(L"no such.asc", grid), L"no such.asc: there is no such file");
    EXPECT_EQ(ReadAscGridFile(L"C:\\windows", grid),
              L"C:\\windows: the file cannot be opened (Windows error 5)");
    EXPECT_EQ(ReadAscGridFile(L"NUL", grid), L"NUL: this is a device, not a file");
}

TEST(AscGridFile, ReadsTheTerrainThatComesWithTheSample) {
    ElevationGrid grid;
    EXPECT_EQ(ReadAscGridFile(HILLS_FILE, grid), L"");
    EXPECT_EQ(grid.Columns(), 120);
    EXPECT_EQ(grid.Rows(), 90);
    EXPECT_EQ(grid.CellSize(), 10);
    EXPECT_EQ(grid.At(0, 89), (MapPoint{437205, 4486305}));
    EXPECT_EQ(grid.Lowest(), 160.21);
    EXPECT_EQ(grid.Highest(), 395.42);
    EXPECT_TRUE(std::isnan(grid.Elevation(0, 89)));  // in the lake
    EXPECT_TRUE(std::isnan(grid.Elevation(119, 0))); // beyond the survey
}
