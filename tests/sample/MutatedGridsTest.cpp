// Files that were damaged on their way, or made to harm: whatever their bytes say, they are read or
// refused with a line, in no more memory than they deserve.
#include "sample/terrain/AscGridFile.h"
#include "sample/terrain/GridWindow.h"
#include "sample/terrain/Gtopo30File.h"

#include "kit/kit.h"

#include <algorithm>
#include <random>
#include <string>

#include "LargestAllocation.h"
#include "Tiles.h"

namespace {

class Mutator {
public:
    explicit Mutator(unsigned seed) : random_(seed) {}

    int Below(size_t limit) {
        return static_cast<int>(std::uniform_int_distribution<size_t>(0, limit - 1)(random_));
    }

    /// One to four changes.
    std::string Mutated(std::string text) {
        for (int changes = 1 + Below(4); changes > 0; --changes)
            Change(text);
        return text;
    }

private:
    void Change(std::string& text) {
        static const std::string hostile[] = {"2147483648", "-2147483648",
                                              "99999999",   "100000000",
                                              "4294967296", "-1",
                                              "0",          "1",
                                              "3",          "1e308",
                                              "-1e-308",    "nan",
                                              "inf",        "I",
                                              "0x10",       "1e",
                                              "-",          "1.5",
                                              "\r\n\r\n",   "NROWS",
                                              "cellsize",   std::string(200, '9')};
        const int at = Below(text.size() + 1);
        switch (Below(7)) {
        case 0:
            text.resize(at);
            break;
        case 1:
            text.insert(at, 1, static_cast<char>(Below(256)));
            break;
        case 2:
            text.erase(at, 1 + Below(8));
            break;
        case 3:
            text += text.substr(at);
            break;
        case 4:
            if (!text.empty())
                text[at % text.size()] ^= static_cast<char>(1 << Below(8));
            break;
        default: // a word in the place of another one
            const size_t start = std::min(text.find_first_of(" \n", at), text.size());
            const size_t word = std::min(text.find_first_not_of(" \n", start), text.size());
            const size_t end = std::min(text.find_first_of(" \n", word), text.size());
            text.replace(word, end - word, hostile[Below(std::size(hostile))]);
        }
    }

    std::mt19937 random_;
};

/// How many tiles or grids were read, and how many refused.
struct Fates {
    int read = 0;
    int refused = 0;
};

/// Reads all elevations of what `open` opens, of at most `size` bytes, as a window does.
template <class Open>
void ReadAll(const Open& open, size_t size, Fates& fates) {
    largestAllocation = 0;
    try {
        const auto source = open();
        const GridFrame& frame = source->Frame();
        const GridWindow window{{frame.West(), frame.South()}, {frame.East(), frame.North()}, 1};
        ASSERT_EQ(TakenColumns(frame, window).count, frame.columns);
        ASSERT_EQ(TakenRows(frame, window).count, frame.rows);
        for (long long left = 1LL * frame.columns * frame.rows; left > 0; --left)
            source->Next();
        source->End();
        ++fates.read;
    } catch (const RefusedFile& refused) {
        ++fates.refused;
        ASSERT_EQ(refused.text.Find(L"file."), 0);
        ASSERT_EQ(refused.text.FindOneOf(L"\r\n"), -1);
    }
    ASSERT_LE(largestAllocation, 4 * size + 2048);
}

} // namespace

TEST(MutatedGrids, TilesAreReadOrRefused) {
    Mutator mutator(14043);
    const std::string tile = TileBytes({1, 2, 3, -9999, -407, 8752});
    Fates fates;
    for (int i = 0; i < 50'000; ++i) {
        const std::string header = mutator.Below(8) ? mutator.Mutated(TileHeader) : TileHeader;
        const std::string bytes = mutator.Below(4) ? tile : mutator.Mutated(tile);
        ASSERT_NO_FATAL_FAILURE(ReadAll([&] { return OpenGtopo30(L"file.DEM", bytes, header); },
                                        header.size() + bytes.size(), fates))
            << header;
    }
    EXPECT_GT(fates.read, 1000);
    EXPECT_GT(fates.refused, 10'000);
}

TEST(MutatedGrids, GridsAreReadOrRefused) {
    Mutator mutator(14053);
    const std::string grid = "ncols 3\nnrows 2\nxllcorner 100\nyllcenter 200.5\ncellsize 10\n"
                             "NODATA_value -9999\n1 2.5 -3\n-9999 4e2 5\n";
    Fates fates;
    for (int i = 0; i < 50'000; ++i) {
        const std::string bytes = mutator.Mutated(grid);
        ASSERT_NO_FATAL_FAILURE(
            ReadAll([&] { return OpenAscGrid(L"file.asc", bytes); }, bytes.size(), fates))
            << bytes;
        ElevationGrid whole;
        largestAllocation = 0;
        ParseAscGrid(L"file.asc", bytes, whole);
        ASSERT_LE(largestAllocation, 4 * bytes.size() + 2048) << bytes;
    }
    EXPECT_GT(fates.read, 1000);
    EXPECT_GT(fates.refused, 10'000);
}
