#include "sample/terrain/Gtopo30File.h"

#include "framework/modules/ModuleFiles.h"
#include "kit/kit.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "Tiles.h"

namespace {

const std::string bytes = TileBytes({1, 2, 3, -9999, -407, 8752});

/// What is said of a tile: empty when it was read whole.
std::string Refused(std::string_view tile, std::string_view header) {
    try {
        const auto source = OpenGtopo30(L"tile.DEM", tile, header);
        for (int i = 0; i < source->Frame().columns * source->Frame().rows; ++i)
            source->Next();
        source->End();
        return "";
    } catch (const RefusedFile& refused) {
        return kit::utf8(refused.text.GetString());
    }
}

/// The same of a file.
std::string Refused(const std::filesystem::path& file) {
    try {
        OpenGtopo30(file.c_str());
        return "";
    } catch (const RefusedFile& refused) {
        return kit::utf8(refused.text.GetString());
    }
}

void Put(const std::filesystem::path& file, const std::string& content) {
    std::ofstream(file, std::ios::binary) << content;
}

} // namespace

TEST(Gtopo30File, ReadsTheRowsFromTheNorth) {
    const auto source = OpenGtopo30(L"tile.DEM", bytes, TileHeader);
    for (const double elevation : {1.0, 2.0, 3.0})
        EXPECT_EQ(source->Next(), elevation);
    EXPECT_TRUE(std::isnan(source->Next()));
    EXPECT_EQ(source->Next(), -407);
    EXPECT_EQ(source->Next(), 8752);
    source->End();
    EXPECT_EQ(source->File(), L"tile.DEM");
}

TEST(Gtopo30File, CountsDegreesFromTheNodeInTheNorthWest) {
    const GridFrame frame = OpenGtopo30(L"tile.DEM", bytes, TileHeader)->Frame();
    EXPECT_EQ(frame.columns, 3);
    EXPECT_EQ(frame.rows, 2);
    EXPECT_EQ(frame.origin, (MapPoint{-5.75, 39.25}));
    EXPECT_EQ(frame.xSpacing, 0.5);
    EXPECT_EQ(frame.ySpacing, 0.5);
    EXPECT_EQ(frame.noData, -9999);
    EXPECT_EQ(frame.West(), -6);
    EXPECT_EQ(frame.East(), -4.5);
    EXPECT_EQ(frame.South(), 39);
    EXPECT_EQ(frame.North(), 40);
}

TEST(Gtopo30File, SpacingsMayDiffer) {
    const GridFrame frame =
        OpenGtopo30(L"tile.DEM", bytes, With(TileHeader, "YDIM", "YDIM 0.25"))->Frame();
    EXPECT_EQ(frame.xSpacing, 0.5);
    EXPECT_EQ(frame.ySpacing, 0.25);
    EXPECT_EQ(frame.origin.y, 39.5);
    EXPECT_EQ(frame.South(), 39.375);
}

TEST(Gtopo30File, AnyMarkerOf16BitsIsMissing) {
    for (const int marker : {-32768, -1, 0, 255, 32767}) {
        const std::string tile = TileBytes({marker, 2, 3, 4, 5, 6});
        const auto source = OpenGtopo30(
            L"tile.DEM", tile, With(TileHeader, "NODATA", "NODATA " + std::to_string(marker)));
        EXPECT_TRUE(std::isnan(source->Next())) << marker;
        EXPECT_EQ(source->Next(), 2);
    }
}

TEST(Gtopo30File, HeaderIsInAnyOrderAndCase) {
    EXPECT_EQ(Refused(bytes, "ydim 5e-1\r\nxdim +.5\r\nulymap 39.75 ulxmap -5.75\r\n\r\nnodata "
                             "-9999\nbandgapbytes 0\ttotalrowbytes 6\nbandrowbytes 6\nnbits 16\n"
                             "nbands 1\nncols 3\nnrows 2\nlayout bil\nbyteorder m"),
              "");
}

TEST(Gtopo30File, NamesTheFileTheLineAndTheField) {
    const std::string longWord(101, '1');
    const struct {
        const char* key;
        std::string line;
        const char* refusal;
    } cases[] = {
        {"BYTEORDER", "BYTEORDER I", "tile.HDR(1): BYTEORDER is not M: I"},
        {"LAYOUT", "LAYOUT BSQ", "tile.HDR(2): LAYOUT is not BIL: BSQ"},
        {"NROWS", "NROWS 1", "tile.HDR(3): NROWS is below 2: 1"},
        {"NROWS", "NROWS -2147483648", "tile.HDR(3): NROWS is below 2: -2147483648"},
        {"NROWS", "NROWS 2147483648", "tile.HDR(3): NROWS is above 100000000: 2147483648"},
        {"NROWS", "NROWS 2.5", "tile.HDR(3): NROWS is not a whole number: 2.5"},
        {"NROWS", "NROWS 33333334",
         "tile.HDR(14): NROWS and NCOLS are more than 100000000 elevations: 33333334 rows of 3"},
        {"NCOLS", "NCOLS 0", "tile.HDR(4): NCOLS is below 2: 0"},
        {"NCOLS", "NCOLS 100000001", "tile.HDR(4): NCOLS is above 100000000: 100000001"},
        {"NCOLS", "NCOLS three", "tile.HDR(4): NCOLS is not a whole number: three"},
        {"NBANDS", "NBANDS 3", "tile.HDR(5): NBANDS is not 1: 3"},
        {"NBITS", "NBITS 8", "tile.HDR(6): NBITS is not 16: 8"},
        {"BANDROWBYTES", "BANDROWBYTES 3",
         "tile.HDR(14): BANDROWBYTES is 3, not 6 for 3 columns of 16 bits"},
        {"TOTALROWBYTES", "TOTALROWBYTES 8",
         "tile.HDR(14): TOTALROWBYTES is 8, not 6 for 3 columns of 16 bits"},
        {"TOTALROWBYTES", "TOTALROWBYTES -6", "tile.HDR(8): TOTALROWBYTES is below 0: -6"},
        {"BANDGAPBYTES", "BANDGAPBYTES 1", "tile.HDR(9): BANDGAPBYTES is not 0: 1"},
        {"NODATA", "NODATA 32768", "tile.HDR(10): NODATA is above 32767: 32768"},
        {"NODATA", "NODATA -32769", "tile.HDR(10): NODATA is below -32768: -32769"},
        {"NODATA", "NODATA nan", "tile.HDR(10): NODATA is not a whole number: nan"},
        {"ULXMAP", "ULXMAP west", "tile.HDR(11): ULXMAP is not a number: west"},
        {"ULXMAP", "ULXMAP -360.5", "tile.HDR(11): ULXMAP is beyond 360: -360.5"},
        {"ULXMAP", "ULXMAP nan", "tile.HDR(11): ULXMAP is not a finite number: nan"},
        {"ULYMAP", "ULYMAP 90.5", "tile.HDR(12): ULYMAP is beyond 90: 90.5"},
        {"ULYMAP", "ULYMAP 1e999", "tile.HDR(12): ULYMAP is not a finite number: 1e999"},
        {"XDIM", "XDIM 0", "tile.HDR(13): XDIM is below 0.000001: 0"},
        {"XDIM", "XDIM 91", "tile.HDR(13): XDIM is beyond 90: 91"},
        {"YDIM", "YDIM -0.5", "tile.HDR(14): YDIM is below 0.000001: -0.5"},
        {"YDIM", "YDIM 0,5", "tile.HDR(14): YDIM is not a number: 0,5"},
        {"YDIM", "YDIM", "tile.HDR(14): YDIM has no value"},
        {"YDIM", "SKIPBYTES 4", "tile.HDR(14): the header key is unknown: SKIPBYTES"},
        {"YDIM", "XDIM 0.5", "tile.HDR(14): XDIM is already given in line 13"},
        {"YDIM", longWord, "tile.HDR(14): there is a word of more than 100 characters"},
        {"YDIM", "YDIM \x01", "tile.HDR(14): there is a control character in the line"},
        {"YDIM", std::string("YDIM \0", 6), "tile.HDR(14): this is not a text file"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Refused(bytes, With(TileHeader, one.key, one.line)), one.refusal);
    for (const char* key :
         {"BYTEORDER", "LAYOUT", "NROWS", "NCOLS", "NBANDS", "NBITS", "BANDROWBYTES",
          "TOTALROWBYTES", "BANDGAPBYTES", "NODATA", "ULXMAP", "ULYMAP", "XDIM"})
        EXPECT_EQ(Refused(bytes, With(TileHeader, key, "")),
                  std::string("tile.HDR(14): the header lacks ") + key);
    EXPECT_EQ(Refused(bytes, ""), "tile.HDR(1): the header lacks BYTEORDER");
}

TEST(Gtopo30File, LengthIsThatOfItsRows) {
    EXPECT_EQ(Refused(std::string_view(bytes).substr(1), TileHeader),
              "tile.DEM: the file is too short: 11 bytes instead of 12 for 2 rows of 3");
    EXPECT_EQ(Refused("", TileHeader),
              "tile.DEM: the file is too short: 0 bytes instead of 12 for 2 rows of 3");
    EXPECT_EQ(Refused(bytes + "x", TileHeader),
              "tile.DEM: the file is too long: 13 bytes instead of 12 for 2 rows of 3");
}

TEST(Gtopo30File, HeaderStandsBesideTheTile) {
    const TemporaryFolder folder;
    const std::filesystem::path path = folder.path() / L"a.b";
    std::filesystem::create_directories(path);
    for (const wchar_t* name : {L"tile.DEM", L"no extension", L"two.dots.dem"}) {
        const std::filesystem::path file = path / name;
        EXPECT_EQ(Refused(file), kit::utf8(file.c_str()) + ": there is no such file");
        Put(file, bytes);
        std::filesystem::path header = file;
        header.replace_extension(L".HDR");
        EXPECT_EQ(Refused(file), kit::utf8(header.c_str()) + ": there is no such file");
        Put(header, TileHeader);
        EXPECT_EQ(Refused(file), "");
        Put(header, "NROWS x");
        EXPECT_EQ(Refused(file), kit::utf8(header.c_str()) + "(1): NROWS is not a whole number: x");
    }
    EXPECT_EQ(Refused(L"NUL"), "NUL: this is a device, not a file");
}

// Longer than the blocks that it is read in.
TEST(Gtopo30File, ReadsATileOfAnyLength) {
    const TemporaryFolder folder;
    std::vector<int> elevations;
    for (int i = 0; i < 200 * 500; ++i)
        elevations.push_back(i % 30000);
    Put(folder.path() / L"long.dem", TileBytes(elevations));
    Put(folder.path() / L"long.hdr",
        With(With(With(With(TileHeader, "NROWS", "NROWS 200"), "NCOLS", "NCOLS 500"), "BANDROW",
                  "BANDROWBYTES 1000"),
             "TOTALROW", "TOTALROWBYTES 1000"));
    const auto source = OpenGtopo30((folder.path() / L"long.dem").c_str());
    for (const int elevation : elevations)
        ASSERT_EQ(source->Next(), elevation);
}

TEST(Gtopo30File, ReadsTheTileThatComesWithTheSample) {
    const auto source = OpenGtopo30(TILE_FILE);
    const GridFrame& frame = source->Frame();
    EXPECT_EQ(frame.columns, 120);
    EXPECT_EQ(frame.rows, 90);
    EXPECT_NEAR(frame.West(), -6, 1e-12);
    EXPECT_NEAR(frame.East(), -5, 1e-11);
    EXPECT_NEAR(frame.North(), 41, 1e-11);
    EXPECT_NEAR(frame.South(), 40.25, 1e-11);
    EXPECT_EQ(source->Next(), 218); // in the north-west
    double highest = 0;
    int missing = 0;
    for (int i = 1; i < 120 * 90; ++i) {
        const double elevation = source->Next();
        if (std::isnan(elevation))
            ++missing; // in the sea
        else
            highest = std::max(highest, elevation);
    }
    EXPECT_EQ(highest, 2265);
    EXPECT_EQ(missing, 1879);
}
