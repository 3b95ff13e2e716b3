// The user chose a rectangle of an elevation file and how densely its nodes are taken, and saw how
// many that makes; the import writes as many.
#include "sample/terrain/GridWindow.h"

#include "framework/modules/ModuleFiles.h"
#include "kit/kit.h"
#include "sample/terrain/AscGridFile.h"
#include "sample/terrain/Gtopo30File.h"

#include <climits>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "Tiles.h"

namespace {

/// How many nodes the dialogs count along one axis.
int Counted(double low, double high, double fileLow, double fileHigh, int ratio, double spacing) {
    low = low > fileLow ? low : fileLow;
    high = high < fileHigh ? high : fileHigh;
    return std::abs(static_cast<int>((high - low) / (ratio * spacing)));
}

int Count(const GridFrame& frame, const GridWindow& window) {
    return TakenColumns(frame, window).count * TakenRows(frame, window).count;
}

/// A grid of ten by ten nodes from 0 to 100, of which each elevation is its number.
std::string TenByTen() {
    std::string text = "ncols 10 nrows 10 xllcorner 0 yllcorner 0 cellsize 10\n";
    for (int number = 0; number < 100; ++number)
        text += std::to_string(number) + " ";
    return text;
}

class GridWindows : public testing::Test {
protected:
    CString Target() const { return (folder.path() / L"window.asc").c_str(); }

    /// Writes a window of a grid and gives the lines of the file, or what it says instead.
    std::string Written(std::string_view grid, const GridWindow& window) const {
        return Written(*OpenAscGrid(L"grid.asc", grid), window);
    }
    std::string Written(GridSource& source, const GridWindow& window) const {
        const CString refusal = WriteGridWindow(Target(), source, window);
        if (!refusal.IsEmpty())
            return kit::utf8(refusal.GetString());
        std::ifstream file(std::filesystem::path(Target().GetString()));
        std::stringstream text;
        text << file.rdbuf();
        return text.str();
    }

    bool IsWritten() const { return !std::filesystem::is_empty(folder.path()); }

    TemporaryFolder folder;
};

} // namespace

TEST(GridFrames, SidesHoldEveryCellWhateverTheRounding) {
    for (const double spacing : {10.0, 0.1, 1.0 / 3, 0.00833333333333, 1e-6, 1e9}) {
        for (const double origin : {0.0, -19.9958333333333, 437205.0, -1e9, 1e9}) {
            for (const int cells : {2, 3, 7, 4800, 6000, 33333}) {
                const GridFrame frame{cells, cells, {origin, -origin}, spacing, spacing};
                EXPECT_EQ(static_cast<int>((frame.East() - frame.West()) / spacing), cells)
                    << origin << " " << spacing;
                EXPECT_EQ(static_cast<int>((frame.North() - frame.South()) / spacing), cells)
                    << origin << " " << spacing;
            }
        }
    }
}

TEST_F(GridWindows, HaveAsManyNodesAsStepsFit) {
    const GridFrame frame = OpenAscGrid(L"grid.asc", TenByTen())->Frame();
    const struct {
        GridWindow window;
        int count;
    } cases[] = {
        {{{0, 0}, {100, 100}, 1}, 100},      {{{0, 0}, {100, 100}, 2}, 25},
        {{{0, 0}, {100, 100}, 3}, 9},        {{{-50, -50}, {500, 500}, 1}, 100},
        {{{0, 0}, {100, 100}, 10}, 1},       {{{0, 0}, {100, 100}, 11}, 0},
        {{{0, 0}, {100, 100}, -2}, 25},      {{{0, 0}, {100, 100}, INT_MIN}, 0},
        {{{0, 0}, {100, 100}, 0}, 0},        {{{15, 25}, {44.9, 60}, 1}, 6},
        {{{100, 0}, {200, 100}, 1}, 0},      {{{-90, 0}, {0, 100}, 1}, 0},
        {{{60, 0}, {40, 100}, 1}, 0},        {{{0, 0}, {9.99, 100}, 1}, 0},
        {{{0, 0}, {HUGE_VAL, 100}, 1}, 100},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Count(frame, one.window), one.count)
            << one.window.low.x << " " << one.window.high.x << " " << one.window.ratio;
}

TEST_F(GridWindows, KeepTheNodesWhereTheyAre) {
    EXPECT_EQ(Written(TenByTen(), {{0, 0}, {100, 100}, 3}),
              "ncols 3\nnrows 3\nxllcenter 5\nyllcenter 5\ncellsize 30\nNODATA_value -9999\n"
              "30 33 36\n60 63 66\n90 93 96\n");
    // The first node inside is at 25, 35: that of 15 is at the west of the window.
    EXPECT_EQ(Written(TenByTen(), {{16, 31}, {51, 56}, 1}),
              "ncols 3\nnrows 2\nxllcenter 25\nyllcenter 35\ncellsize 10\nNODATA_value -9999\n"
              "52 53 54\n62 63 64\n");
}

TEST_F(GridWindows, KeepElevationsAndTheirMarker) {
    EXPECT_EQ(Written("ncols 2 nrows 2 xllcenter 0.5 yllcenter -1e-3 cellsize 0.1 nodata_value "
                      "-3.4028234663852886e+38 1e-7 -3.4028234663852886e+38 0.10 -12.345678901234",
                      {{-1, -1}, {1, 1}, 1}),
              "ncols 2\nnrows 2\nxllcenter 0.5\nyllcenter -0.001\ncellsize 0.1\n"
              "NODATA_value -3.4028234663852886e+38\n"
              "1e-07 -3.4028234663852886e+38\n0.1 -12.345678901234\n");
    EXPECT_EQ(Written("ncols 2 nrows 2 xllcenter 0 yllcenter 0 cellsize 1 nodata_value nan "
                      "nan 1 2 -nan",
                      {{-1, -1}, {9, 9}, 1}),
              "ncols 2\nnrows 2\nxllcenter 0\nyllcenter 0\ncellsize 1\nNODATA_value nan\n"
              "nan 1\n2 nan\n");
}

TEST_F(GridWindows, MayHoldNothingButMissingNodes) {
    EXPECT_EQ(Written("ncols 2 nrows 2 xllcorner 0 yllcorner 0 cellsize 1 -9999 -9999 -9999 1",
                      {{0, 1}, {2, 2}, 1}),
              "ncols 2\nnrows 1\nxllcenter 0.5\nyllcenter 1.5\ncellsize 1\n"
              "NODATA_value -9999\n-9999 -9999\n");
}

TEST_F(GridWindows, TileIsWrittenInDegrees) {
    const std::string tile = TileBytes({1, 2, 3, -9999, -407, 8752});
    EXPECT_EQ(Written(*OpenGtopo30(L"tile.DEM", tile, TileHeader), {{-6, 39}, {-5, 40}, 1}),
              "ncols 2\nnrows 2\nxllcenter -5.75\nyllcenter 39.25\ncellsize 0.5\n"
              "NODATA_value -9999\n1 2\n-9999 -407\n");
}

TEST_F(GridWindows, TileWithOtherCellsIsRefused) {
    const std::string tile = TileBytes({1, 2, 3, 4, 5, 6});
    EXPECT_EQ(Written(*OpenGtopo30(L"tile.DEM", tile, With(TileHeader, "YDIM", "YDIM 0.25")),
                      {{-6, 39}, {-5, 40}, 1}),
              "tile.DEM: its cells are not square, as those of an ASCII grid are: 0.5, 0.25");
    EXPECT_FALSE(IsWritten());
}

TEST_F(GridWindows, WithoutANodeAreNotWritten) {
    const std::string grid = TenByTen();
    EXPECT_EQ(Written(grid, {{200, 0}, {300.5, 100}, 1}),
              "grid.asc: the window from 200, 0 to 300.5, 100 lies outside of the file");
    EXPECT_EQ(Written(grid, {{0, -5}, {100, 0}, 1}),
              "grid.asc: the window from 0, -5 to 100, 0 lies outside of the file");
    EXPECT_EQ(Written(grid, {{0, 0}, {100, 9}, 1}),
              "grid.asc: the window from 0, 0 to 100, 9 is smaller than the distance between two "
              "nodes that are taken");
    EXPECT_EQ(Written(grid, {{0, 0}, {100, 100}, 0}), "grid.asc: the ratio is 0");
    EXPECT_FALSE(IsWritten());
}

TEST_F(GridWindows, OfABadFileAreNotWritten) {
    const std::string header = "ncols 2 nrows 2 xllcorner 0 yllcorner 0 cellsize 1\n";
    const GridWindow window{{0, 0}, {2, 2}, 1};
    EXPECT_EQ(Written(header + "1 2 3", window),
              "grid.asc(2): the file ends before row 2, column 2, of 2 rows of 2");
    EXPECT_EQ(Written(header + "1 2 3 4 5", window),
              "grid.asc(2): there are more elevations than 2 rows of 2");
    EXPECT_EQ(Written(header + "1 2\nx 4", window),
              "grid.asc(3): the elevation in row 2, column 1 is not a number: x");
    // Also outside of the window: a file is read whole or refused whole.
    EXPECT_EQ(Written(header + "1 2\n3 4,5", {{0, 1}, {2, 2}, 1}),
              "grid.asc(3): the elevation in row 2, column 2 is not a number: 4,5");
    EXPECT_FALSE(IsWritten());
}

TEST_F(GridWindows, FailureLeavesWhatStoodThere) {
    std::ofstream(std::filesystem::path(Target().GetString())) << "old";
    const auto source =
        OpenAscGrid(L"grid.asc", "ncols 2 nrows 2 xllcorner 0 yllcorner 0 cellsize 1 1 2 3");
    EXPECT_FALSE(WriteGridWindow(Target(), *source, {{0, 0}, {2, 2}, 1}).IsEmpty());
    std::string text;
    std::ifstream(std::filesystem::path(Target().GetString())) >> text;
    EXPECT_EQ(text, "old");
}

TEST_F(GridWindows, NamesTheFileThatCannotBeWritten) {
    const std::string grid = TenByTen();
    const auto source = OpenAscGrid(L"grid.asc", grid);
    const CString target = (folder.path() / L"no" / L"such.asc").c_str();
    EXPECT_EQ(WriteGridWindow(target, *source, {{0, 0}, {100, 100}, 1}),
              target + L": there is no such folder");
}

TEST_F(GridWindows, AgreeWithTheDialogsAndKeepTheirNodes) {
    ElevationGrid hills;
    ASSERT_EQ(ReadAscGridFile(HILLS_FILE, hills), L"");
    for (const GridWindow& window : {GridWindow{{437200, 4486300}, {438400, 4487200}, 1},
                                     GridWindow{{437200, 4486300}, {438400, 4487200}, 7},
                                     GridWindow{{437333.333, 4486511.1}, {438001.25, 4487000}, 2},
                                     GridWindow{{0, 0}, {1e7, 4486555.555}, 3}}) {
        const auto source = OpenAscGrid(HILLS_FILE);
        const GridFrame frame = source->Frame();
        ASSERT_EQ(WriteGridWindow(Target(), *source, window), L"");
        ElevationGrid written;
        ASSERT_EQ(ReadAscGridFile(Target(), written), L"");
        EXPECT_EQ(written.Columns(), Counted(window.low.x, window.high.x, frame.West(),
                                             frame.East(), window.ratio, frame.xSpacing));
        EXPECT_EQ(written.Rows(), Counted(window.low.y, window.high.y, frame.South(), frame.North(),
                                          window.ratio, frame.xSpacing));
        for (int row = 0; row < written.Rows(); ++row) {
            for (int column = 0; column < written.Columns(); ++column) {
                const MapPoint at = written.At(column, row);
                EXPECT_TRUE(at.x >= window.low.x && at.x <= window.high.x);
                EXPECT_TRUE(at.y >= window.low.y && at.y <= window.high.y);
                const double there =
                    hills.Elevation(static_cast<int>(std::lround((at.x - 437205) / 10)),
                                    89 - static_cast<int>(std::lround((at.y - 4486305) / 10)));
                const double here = written.Elevation(column, row);
                EXPECT_TRUE(here == there || (std::isnan(here) && std::isnan(there)));
            }
        }
    }
}

TEST_F(GridWindows, WholeTileComesWhole) {
    const auto source = OpenGtopo30(TILE_FILE);
    // As degrees, minutes and seconds with one decimal show the sides of the file.
    ASSERT_EQ(WriteGridWindow(Target(), *source, {{-6, 40.25}, {-5, 41}, 1}), L"");
    ElevationGrid written;
    ASSERT_EQ(ReadAscGridFile(Target(), written), L"");
    EXPECT_EQ(written.Columns(), 120);
    EXPECT_EQ(written.Rows(), 90);
    EXPECT_EQ(written.CellSize(), 0.00833333333333);
    EXPECT_EQ(written.Elevation(0, 0), 218);
    EXPECT_EQ(written.Highest(), 2265);
}

// Windows and frames of every kind: the nodes are as many as the dialogs count, in the file, and
// inside of the window.
TEST(GridWindowsOfChance, TakeNodesOfTheFileInsideTheWindow) {
    std::mt19937 random(14253);
    const auto between = [&](double low, double high) {
        return std::uniform_real_distribution<>(low, high)(random);
    };
    const auto whole = [&](int low, int high) {
        return std::uniform_int_distribution<>(low, high)(random);
    };
    int taken = 0;
    for (int i = 0; i < 200'000; ++i) {
        const double spacing = std::pow(10, between(-6, 6));
        const double origin = whole(0, 1) ? between(-1e7, 1e7) : whole(-9, 9) * spacing;
        const GridFrame frame{whole(2, 50), 2, {origin, 0}, spacing, 1};
        const double width = frame.East() - frame.West();
        // On nodes, on sides of cells, and anywhere, within and beyond.
        const auto place = [&] {
            return whole(0, 1) ? frame.West() + whole(-4, 104) * 0.5 * spacing
                               : frame.West() + between(-0.5, 1.5) * width;
        };
        GridWindow window{{place(), 0}, {place(), 1}, whole(-3, 12)};
        const TakenNodes nodes = TakenColumns(frame, window);
        const int counted = window.ratio == 0 || window.low.x >= window.high.x ||
                                    window.low.x >= frame.East() || window.high.x <= frame.West()
                                ? 0
                                : Counted(window.low.x, window.high.x, frame.West(), frame.East(),
                                          window.ratio, spacing);
        ASSERT_EQ(nodes.count, counted) << i;
        if (nodes.count == 0)
            continue;
        ++taken;
        const long long last = nodes.first + (nodes.count - 1) * nodes.step;
        ASSERT_GE(nodes.first, 0) << i;
        ASSERT_LT(last, frame.columns) << i;
        const double rounding = 1e-6 * spacing + 1e-8;
        ASSERT_GE(origin + nodes.first * spacing, window.low.x - rounding) << i;
        ASSERT_LE(origin + static_cast<double>(last) * spacing, window.high.x + rounding) << i;
        int has = 0;
        for (int node = 0; node < frame.columns; ++node)
            has += nodes.Has(node);
        ASSERT_EQ(has, nodes.count) << i;
    }
    EXPECT_GT(taken, 50'000);
}
