#include "sample/terrain/AscGridFile.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "sample/TextFile.h"
#include "sample/terrain/Words.h"

namespace {

/// The largest coordinate and elevation, in metres. What lies further from zero is a sign of a
/// wrong marker of missing values, or of a file of another kind.
constexpr double Furthest = 1e9;

double NearNumber(std::string_view word, const std::wstring& name) {
    const double number = FiniteNumber(word, name);
    if (std::abs(number) > Furthest)
        throw Fault{name + L" is beyond 1000000000: " + Shown(word)};
    return number;
}

/// What a key of the header gives.
enum Given : size_t { Columns, Rows, West, South, CellSize, NoData, GivenCount };

constexpr HeaderKey Keys[] = {{"ncols", Columns},     {"nrows", Rows},         {"xllcorner", West},
                              {"xllcenter", West},    {"yllcorner", South},    {"yllcenter", South},
                              {"cellsize", CellSize}, {"nodata_value", NoData}};

/// The keys that a header must have, as the refusals call them; NODATA_value has a default.
constexpr const wchar_t* Needed[] = {L"ncols", L"nrows", L"xllcorner or xllcenter",
                                     L"yllcorner or yllcenter", L"cellsize"};

/// What stands before the elevations.
struct Header {
    int columns = 0;
    int rows = 0;
    MapPoint southWest; ///< The corner or the centre of that cell, as told by the two below.
    bool xIsCorner = false;
    bool yIsCorner = false;
    double cellSize = 0;
    double noData = GridFrame().noData;

    void Take(const HeaderKey& key, std::string_view word) {
        const std::wstring name = Shown(key.name);
        switch (key.field) {
        case Columns:
            columns = WholeNumber(word, name, 2, MostElevations);
            break;
        case Rows:
            rows = WholeNumber(word, name, 2, MostElevations);
            break;
        case West:
            southWest.x = NearNumber(word, name);
            xIsCorner = key.name.ends_with("corner");
            break;
        case South:
            southWest.y = NearNumber(word, name);
            yIsCorner = key.name.ends_with("corner");
            break;
        case CellSize:
            cellSize = NearNumber(word, name);
            if (cellSize < SmallestCell)
                throw Fault{name + L" is below 0.000001: " + Shown(word)};
            break;
        default:
            noData = IsNan(word) ? ElevationGrid::Missing : FiniteNumber(word, name);
        }
    }

    GridFrame Frame() const {
        return {columns,
                rows,
                {southWest.x + (xIsCorner ? cellSize / 2 : 0),
                 southWest.y + (yIsCorner ? cellSize / 2 : 0)},
                cellSize,
                cellSize,
                noData};
    }
};

bool IsNumberLike(std::string_view word) {
    // "inf" is a number, too.
    return std::string_view("+-.0123456789").find(word[0]) != std::string_view::npos ||
           Number(word);
}

/// Reads up to the first elevation, which is then the last word.
Header ReadHeader(Words& words) {
    const auto advance = [&] {
        if (!words.Advance())
            throw Fault{L"the file ends before the first elevation"};
    };
    Header header;
    HeaderKeys keys(Keys, GivenCount);
    for (advance(); !IsNumberLike(words.Word()); advance()) {
        const HeaderKey& key = keys.Take(words);
        advance();
        header.Take(key, words.Word());
    }
    for (size_t given = 0; given < std::size(Needed); ++given)
        keys.Need(given, Needed[given]);
    if (static_cast<long long>(header.columns) * header.rows > MostElevations) {
        throw Fault{L"the grid has more than " + std::to_wstring(MostElevations) +
                    L" elevations: " + std::to_wstring(header.rows) + L" rows of " +
                    std::to_wstring(header.columns)};
    }
    return header;
}

class AscGridSource : public GridSource {
public:
    AscGridSource(const CString& file, const ByteStream& bytes) : GridSource(file), m_Words(bytes) {
        try {
            m_Frame = ReadHeader(m_Words).Frame();
        } catch (const Fault& fault) {
            Refuse(fault);
        }
    }

    double Next() override {
        try {
            // The first one is the last word already.
            if (m_Read > 0 && !m_Words.Advance())
                throw Fault{L"the file ends before " + Place() + L", of " + Size()};
            const double elevation = Elevation(m_Words.Word());
            ++m_Read;
            return elevation;
        } catch (const Fault& fault) {
            Refuse(fault);
        }
    }

    void End() override {
        try {
            if (m_Words.Advance())
                throw Fault{L"there are more elevations than " + Size()};
        } catch (const Fault& fault) {
            Refuse(fault);
        }
    }

private:
    [[noreturn]] void Refuse(const Fault& fault) const {
        throw RefusedFile{Refusal(m_File, m_Words.Line(), fault.text)};
    }

    double Elevation(std::string_view word) const {
        const std::optional<double> number = Number(word);
        if (number == m_Frame.noData ||
            (std::isnan(m_Frame.noData) && std::isnan(number.value_or(0))))
            return ElevationGrid::Missing;
        if (number && std::abs(*number) <= Furthest)
            return *number;
        return NearNumber(word, L"the elevation in " + Place()); // throws: it is none
    }

    /// Of the next elevation.
    std::wstring Place() const {
        return L"row " + std::to_wstring(m_Read / m_Frame.columns + 1) + L", column " +
               std::to_wstring(m_Read % m_Frame.columns + 1);
    }

    std::wstring Size() const {
        return std::to_wstring(m_Frame.rows) + L" rows of " + std::to_wstring(m_Frame.columns);
    }

    Words m_Words;
    int m_Read = 0;
};

std::unique_ptr<GridSource> Open(const CString& file, const ByteStream& bytes) {
    try {
        return std::make_unique<AscGridSource>(file, bytes);
    } catch (const Fault& fault) {
        throw RefusedFile{Refusal(file, fault.text)};
    }
}

CString Read(const CString& file, const ByteStream& bytes, ElevationGrid& grid) {
    try {
        const std::unique_ptr<GridSource> source = Open(file, bytes);
        const GridFrame& frame = source->Frame();
        const long long count = static_cast<long long>(frame.columns) * frame.rows;
        std::vector<double> elevations;
        // At once: growing takes more than twice as much while it copies. Each takes two bytes of
        // the file, whatever the header promises.
        elevations.reserve(static_cast<size_t>(std::min(count, bytes.size / 2 + 1)));
        for (long long index = 0; index < count; ++index)
            elevations.push_back(source->Next());
        source->End();
        ElevationGrid found(frame.columns, frame.xSpacing, frame.origin, std::move(elevations));
        if (std::isnan(found.Lowest()))
            return Refusal(file, L"every elevation is missing");
        grid = std::move(found);
        return {};
    } catch (const RefusedFile& refused) {
        return refused.text;
    } catch (const std::bad_alloc&) {
        return Refusal(file, L"there is not enough memory for its elevations");
    }
}

} // namespace

std::unique_ptr<GridSource> OpenAscGrid(const CString& file) {
    try {
        return Open(file, BytesOfFile(file));
    } catch (const Fault& fault) {
        throw RefusedFile{Refusal(file, fault.text)};
    }
}

std::unique_ptr<GridSource> OpenAscGrid(const CString& file, std::string_view bytes) {
    return Open(file, BytesOfText(bytes));
}

CString ReadAscGridFile(const CString& file, ElevationGrid& grid) {
    try {
        return Read(file, BytesOfFile(file), grid);
    } catch (const Fault& fault) {
        return Refusal(file, fault.text);
    }
}

CString ParseAscGrid(const CString& file, std::string_view bytes, ElevationGrid& grid) {
    return Read(file, BytesOfText(bytes), grid);
}
