#include "sample/terrain/AscGridFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "sample/TextFile.h"

namespace {

constexpr size_t BlockSize = 64 * 1024;
constexpr size_t LongestWord = 100;
constexpr int MostElevations = 100'000'000;
constexpr double DefaultNoData = -9999;
/// The largest coordinate and elevation, in metres. What lies further from zero is a sign of a
/// wrong marker of missing values, or of a file of another kind.
constexpr double Furthest = 1e9;
/// The smallest cell, in metres: the coordinates of smaller ones, far from zero as those of maps
/// are, would differ by less than a double can tell.
constexpr double SmallestCell = 1e-6;

/// Gives the next bytes of a file, as InputFile::Read does.
using ReadBlock = std::function<size_t(char* bytes, size_t size)>;

/// The words of a text: what stands between blanks and ends of lines.
class Words {
public:
    explicit Words(ReadBlock read) : m_Read(std::move(read)), m_Block(BlockSize, '\0') {
        constexpr std::string_view mark = "\xEF\xBB\xBF";
        Fill();
        if (std::string_view(m_Block).substr(0, m_Size).starts_with(mark))
            m_Next = mark.size();
    }

    /// Goes to the next word; false at the end of the text. Throws a Fault when it is none.
    bool Advance() {
        while (More() && IsBlank(m_Block[m_Next])) {
            if (m_Block[m_Next++] == '\n')
                ++m_Line;
        }
        if (!More())
            return false;
        m_WordLine = m_Line;
        for (m_Length = 0; More() && !IsBlank(m_Block[m_Next]); ++m_Next)
            Append(m_Block[m_Next]);
        return true;
    }

    std::string_view Word() const { return {m_Word.data(), m_Length}; }

    /// Line of the last word, from 1.
    long long Line() const { return m_WordLine; }

private:
    static bool IsBlank(char character) {
        return character == ' ' || character == '\t' || character == '\r' || character == '\n';
    }

    void Append(char character) {
        if (character == '\0')
            throw Fault{L"this is not a text file"};
        if (static_cast<unsigned char>(character) < ' ')
            throw Fault{L"there is a control character in the line"};
        if (m_Length == LongestWord) {
            throw Fault{L"there is a word of more than " + std::to_wstring(LongestWord) +
                        L" characters"};
        }
        m_Word[m_Length++] = character;
    }

    bool More() {
        if (m_Next == m_Size)
            Fill();
        return m_Next < m_Size;
    }

    void Fill() {
        m_Size = m_Read(m_Block.data(), m_Block.size());
        m_Next = 0;
    }

    ReadBlock m_Read;
    std::string m_Block;
    size_t m_Size = 0;
    size_t m_Next = 0;
    std::array<char, LongestWord> m_Word{};
    size_t m_Length = 0;
    long long m_Line = 1;
    long long m_WordLine = 1;
};

/// A word for a message.
std::wstring Shown(std::string_view word) {
    std::wstring shown;
    for (const char character : word)
        shown += character >= ' ' && character <= '~' ? static_cast<wchar_t>(character) : L'?';
    return shown;
}

/// The number that a word is; none when it is not one.
std::optional<double> Number(std::string_view word) {
    const char* const end = word.data() + word.size();
    // A plus before another sign is not taken off, and so refused.
    const bool plus = word.size() > 1 && word[0] == '+' && word[1] != '-';
    double number = 0;
    const auto [last, error] = std::from_chars(word.data() + plus, end, number);
    if (last != end || error == std::errc::invalid_argument)
        return {};
    if (error == std::errc::result_out_of_range) {
        // Too large or too small: from_chars does not say which, but the sign of the exponent does.
        const bool small = word.find("e-") != word.npos || word.find("E-") != word.npos;
        return small ? 0 : HUGE_VAL;
    }
    return number;
}

/// "nan", as several programs mark what is missing.
bool IsNan(std::string_view word) {
    return std::isnan(Number(word).value_or(0));
}

/// A finite number; `name` is what it is called.
double FiniteNumber(std::string_view word, const std::wstring& name) {
    const std::optional<double> number = Number(word);
    if (!number)
        throw Fault{name + L" is not a number: " + Shown(word)};
    if (!std::isfinite(*number))
        throw Fault{name + L" is not a finite number: " + Shown(word)};
    return *number;
}

double NearNumber(std::string_view word, const std::wstring& name) {
    const double number = FiniteNumber(word, name);
    if (std::abs(number) > Furthest)
        throw Fault{name + L" is beyond 1000000000: " + Shown(word)};
    return number;
}

int Dimension(std::string_view word, const std::wstring& name) {
    const char* const end = word.data() + word.size();
    const bool plus = word.starts_with('+') && !word.starts_with("+-");
    int number = 0;
    const auto [last, error] = std::from_chars(word.data() + plus, end, number);
    if (last != end || error == std::errc::invalid_argument)
        throw Fault{name + L" is not a whole number: " + Shown(word)};
    if (word[0] == '-' || (error == std::errc() && number < 2))
        throw Fault{name + L" is below 2: " + Shown(word)};
    if (error != std::errc() || number > MostElevations)
        throw Fault{name + L" is above " + std::to_wstring(MostElevations) + L": " + Shown(word)};
    return number;
}

/// What a key of the header gives.
enum Given { Columns, Rows, West, South, CellSize, NoData, GivenCount };

struct Key {
    std::string_view name;
    Given given;
};

constexpr Key Keys[] = {{"ncols", Columns},     {"nrows", Rows},         {"xllcorner", West},
                        {"xllcenter", West},    {"yllcorner", South},    {"yllcenter", South},
                        {"cellsize", CellSize}, {"nodata_value", NoData}};

/// The keys that a header must have, as the refusals call them; NODATA_value has a default.
constexpr const wchar_t* Needed[] = {L"ncols", L"nrows", L"xllcorner or xllcenter",
                                     L"yllcorner or yllcenter", L"cellsize"};

const Key& FindKey(std::string_view word) {
    const auto same = [](char letter, char typed) {
        return letter == (typed >= 'A' && typed <= 'Z' ? typed - 'A' + 'a' : typed);
    };
    const auto* const key = std::ranges::find_if(
        Keys, [&](const Key& one) { return std::ranges::equal(one.name, word, same); });
    if (key == std::end(Keys))
        throw Fault{L"the header key is unknown: " + Shown(word)};
    return *key;
}

/// What stands before the elevations.
struct Header {
    int columns = 0;
    int rows = 0;
    MapPoint southWest; ///< The corner or the centre of that cell, as told by the two below.
    bool xIsCorner = false;
    bool yIsCorner = false;
    double cellSize = 0;
    double noData = DefaultNoData;

    void Take(const Key& key, std::string_view word) {
        const std::wstring name = Shown(key.name);
        switch (key.given) {
        case Columns:
            columns = Dimension(word, name);
            break;
        case Rows:
            rows = Dimension(word, name);
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

    /// The node in the south-west.
    MapPoint Origin() const {
        return {southWest.x + (xIsCorner ? cellSize / 2 : 0),
                southWest.y + (yIsCorner ? cellSize / 2 : 0)};
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
    std::array<long long, GivenCount> lines{};
    for (advance(); !IsNumberLike(words.Word()); advance()) {
        const Key& key = FindKey(words.Word());
        long long& line = lines[key.given];
        if (line != 0)
            throw Fault{Shown(key.name) + L" is already given in line " + std::to_wstring(line)};
        line = words.Line();
        advance();
        header.Take(key, words.Word());
    }
    for (size_t given = 0; given < std::size(Needed); ++given) {
        if (lines[given] == 0)
            throw Fault{std::wstring(L"the header lacks ") + Needed[given]};
    }
    if (static_cast<long long>(header.columns) * header.rows > MostElevations) {
        throw Fault{L"the grid has more than " + std::to_wstring(MostElevations) +
                    L" elevations: " + std::to_wstring(header.rows) + L" rows of " +
                    std::to_wstring(header.columns)};
    }
    return header;
}

/// Reads the elevations, of which the first is the last word already.
std::vector<double> ReadElevations(Words& words, const Header& header) {
    const size_t count = static_cast<size_t>(header.columns) * header.rows;
    const auto place = [&](size_t index) {
        return L"row " + std::to_wstring(index / header.columns + 1) + L", column " +
               std::to_wstring(index % header.columns + 1);
    };
    const auto size = [&] {
        return std::to_wstring(header.rows) + L" rows of " + std::to_wstring(header.columns);
    };

    std::vector<double> elevations;
    // At once, up to 800 MB, even if the header promises too much: growing takes more than twice
    // as much while it copies.
    elevations.reserve(count);
    for (size_t index = 0; index < count; ++index) {
        if (index > 0 && !words.Advance())
            throw Fault{L"the file ends before " + place(index) + L", of " + size()};
        const std::optional<double> number = Number(words.Word());
        if (number == header.noData ||
            (std::isnan(header.noData) && std::isnan(number.value_or(0))))
            elevations.push_back(ElevationGrid::Missing);
        else if (number && std::abs(*number) <= Furthest)
            elevations.push_back(*number);
        else
            NearNumber(words.Word(), L"the elevation in " + place(index)); // throws: it is none
    }
    if (words.Advance())
        throw Fault{L"there are more elevations than " + size()};
    return elevations;
}

CString Read(const CString& file, const ReadBlock& read, ElevationGrid& grid) {
    Words words(read);
    try {
        const Header header = ReadHeader(words);
        ElevationGrid found(header.columns, header.cellSize, header.Origin(),
                            ReadElevations(words, header));
        if (std::isnan(found.Lowest()))
            return Refusal(file, L"every elevation is missing");
        grid = std::move(found);
        return {};
    } catch (const Fault& fault) {
        return Refusal(file, words.Line(), fault.text);
    } catch (const std::bad_alloc&) {
        return Refusal(file, L"there is not enough memory for its elevations");
    }
}

} // namespace

CString ReadAscGridFile(const CString& file, ElevationGrid& grid) {
    try {
        InputFile input(file);
        return Read(
            file, [&](char* bytes, size_t size) { return input.Read(bytes, size); }, grid);
    } catch (const Fault& fault) {
        return Refusal(file, fault.text);
    }
}

CString ParseAscGrid(const CString& file, std::string_view bytes, ElevationGrid& grid) {
    const auto read = [&](char* to, size_t size) {
        const size_t count = bytes.copy(to, size);
        bytes.remove_prefix(count);
        return count;
    };
    return Read(file, read, grid);
}
