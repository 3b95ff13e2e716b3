#include "sample/terrain/Gtopo30File.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "sample/TextFile.h"
#include "sample/terrain/Words.h"

namespace {

constexpr size_t BlockSize = 64 * 1024;

enum Field : size_t {
    ByteOrder,
    Layout,
    Rows,
    Columns,
    Bands,
    Bits,
    BandRowBytes,
    TotalRowBytes,
    BandGapBytes,
    NoData,
    UpperLeftX,
    UpperLeftY,
    XSpacing,
    YSpacing,
    FieldCount
};

/// In the order of the fields.
constexpr HeaderKey Keys[] = {{"BYTEORDER", ByteOrder},
                              {"LAYOUT", Layout},
                              {"NROWS", Rows},
                              {"NCOLS", Columns},
                              {"NBANDS", Bands},
                              {"NBITS", Bits},
                              {"BANDROWBYTES", BandRowBytes},
                              {"TOTALROWBYTES", TotalRowBytes},
                              {"BANDGAPBYTES", BandGapBytes},
                              {"NODATA", NoData},
                              {"ULXMAP", UpperLeftX},
                              {"ULYMAP", UpperLeftY},
                              {"XDIM", XSpacing},
                              {"YDIM", YSpacing}};

/// A number from -`most` to `most`, in degrees.
double Degrees(std::string_view word, const std::wstring& name, int most) {
    const double degrees = FiniteNumber(word, name);
    if (std::abs(degrees) > most)
        throw Fault{name + L" is beyond " + std::to_wstring(most) + L": " + Shown(word)};
    return degrees;
}

double Spacing(std::string_view word, const std::wstring& name) {
    const double spacing = Degrees(word, name, 90);
    if (spacing < SmallestCell)
        throw Fault{name + L" is below 0.000001: " + Shown(word)};
    return spacing;
}

/// Throws a Fault unless a field has the only value that is read.
void Require(std::string_view word, const std::wstring& name, std::string_view only) {
    if (!IsNamed(word, only))
        throw Fault{name + L" is not " + Shown(only) + L": " + Shown(word)};
}

/// The header of a tile.
class Header {
public:
    explicit Header(Words& words) {
        HeaderKeys keys(Keys, FieldCount);
        while (words.Advance()) {
            const HeaderKey& key = keys.Take(words);
            const std::wstring name = Shown(key.name);
            if (!words.Advance())
                throw Fault{name + L" has no value"};
            Take(key.field, name, words.Word());
        }
        for (const HeaderKey& key : Keys)
            keys.Need(key.field, Shown(key.name));
        if (static_cast<long long>(m_Columns) * m_Rows > MostElevations) {
            throw Fault{L"NROWS and NCOLS are more than " + std::to_wstring(MostElevations) +
                        L" elevations: " + std::to_wstring(m_Rows) + L" rows of " +
                        std::to_wstring(m_Columns)};
        }
        RequireRowBytes(m_BandRowBytes, L"BANDROWBYTES");
        RequireRowBytes(m_TotalRowBytes, L"TOTALROWBYTES");
    }

    GridFrame Frame() const {
        return {m_Columns,  m_Rows,     {m_UpperLeft.x, m_UpperLeft.y - (m_Rows - 1) * m_YSpacing},
                m_XSpacing, m_YSpacing, static_cast<double>(m_NoData)};
    }

private:
    void Take(size_t field, const std::wstring& name, std::string_view word) {
        constexpr int most = std::numeric_limits<int>::max();
        switch (field) {
        case ByteOrder:
            return Require(word, name, "M");
        case Layout:
            return Require(word, name, "BIL");
        case Bands:
            return Require(word, name, "1");
        case Bits:
            return Require(word, name, "16");
        case BandGapBytes:
            return Require(word, name, "0");
        case Rows:
            m_Rows = WholeNumber(word, name, 2, MostElevations);
            break;
        case Columns:
            m_Columns = WholeNumber(word, name, 2, MostElevations);
            break;
        case BandRowBytes:
            m_BandRowBytes = WholeNumber(word, name, 0, most);
            break;
        case TotalRowBytes:
            m_TotalRowBytes = WholeNumber(word, name, 0, most);
            break;
        case NoData:
            m_NoData = WholeNumber(word, name, std::numeric_limits<std::int16_t>::min(),
                                   std::numeric_limits<std::int16_t>::max());
            break;
        case UpperLeftX:
            m_UpperLeft.x = Degrees(word, name, 360);
            break;
        case UpperLeftY:
            m_UpperLeft.y = Degrees(word, name, 90);
            break;
        case XSpacing:
            m_XSpacing = Spacing(word, name);
            break;
        default:
            m_YSpacing = Spacing(word, name);
        }
    }

    void RequireRowBytes(int bytes, const std::wstring& name) const {
        if (bytes != 2 * m_Columns) {
            throw Fault{name + L" is " + std::to_wstring(bytes) + L", not " +
                        std::to_wstring(2 * m_Columns) + L" for " + std::to_wstring(m_Columns) +
                        L" columns of 16 bits"};
        }
    }

    int m_Rows = 0;
    int m_Columns = 0;
    int m_BandRowBytes = 0;
    int m_TotalRowBytes = 0;
    int m_NoData = 0;
    MapPoint m_UpperLeft; ///< The node there.
    double m_XSpacing = 0;
    double m_YSpacing = 0;
};

class Gtopo30Source : public GridSource {
public:
    Gtopo30Source(const CString& file, const ByteStream& bytes, const GridFrame& frame)
        : GridSource(file), m_Bytes(bytes) {
        m_Frame = frame;
        const long long expected = 2LL * frame.rows * frame.columns;
        if (bytes.size != expected) {
            Refuse(std::wstring(bytes.size < expected ? L"the file is too short: "
                                                      : L"the file is too long: ") +
                   std::to_wstring(bytes.size) + L" bytes instead of " + std::to_wstring(expected) +
                   L" for " + std::to_wstring(frame.rows) + L" rows of " +
                   std::to_wstring(frame.columns));
        }
        m_Block.resize(static_cast<size_t>(std::min<long long>(expected, BlockSize)));
    }

    double Next() override {
        // The most significant byte comes first.
        const unsigned high = Byte();
        const auto elevation = static_cast<std::int16_t>(high << 8 | Byte());
        return elevation == m_Frame.noData ? ElevationGrid::Missing : elevation;
    }

    void End() override {} // its length is known to be right

private:
    [[noreturn]] void Refuse(const std::wstring& what) const {
        throw RefusedFile{Refusal(m_File, what)};
    }

    unsigned Byte() {
        if (m_Next == m_Size)
            Fill();
        return static_cast<unsigned char>(m_Block[m_Next++]);
    }

    void Fill() {
        try {
            m_Size = m_Bytes.read(m_Block.data(), m_Block.size());
        } catch (const Fault& fault) {
            Refuse(fault.text);
        }
        if (m_Size == 0) // it had another length when it was opened
            Refuse(L"the file cannot be read");
        m_Next = 0;
    }

    ByteStream m_Bytes;
    std::vector<char> m_Block;
    size_t m_Size = 0;
    size_t m_Next = 0;
};

CString HeaderName(const CString& file) {
    const int dot = file.ReverseFind(L'.');
    const bool ends = dot > std::max(file.ReverseFind(L'\\'), file.ReverseFind(L'/'));
    return (ends ? file.Left(dot) : file) + L".HDR";
}

/// Opens either of the two files.
template <class Opening>
auto Opened(const CString& file, const Opening& opening) {
    try {
        return opening();
    } catch (const Fault& fault) {
        throw RefusedFile{Refusal(file, fault.text)};
    }
}

GridFrame ReadHeader(const CString& file, const ByteStream& bytes) {
    return Opened(file, [&] {
        Words words(bytes);
        try {
            return Header(words).Frame();
        } catch (const Fault& fault) {
            throw RefusedFile{Refusal(file, words.Line(), fault.text)};
        }
    });
}

} // namespace

std::unique_ptr<GridSource> OpenGtopo30(const CString& file) {
    const ByteStream bytes = Opened(file, [&] { return BytesOfFile(file); });
    const CString header = HeaderName(file);
    const GridFrame frame = ReadHeader(header, Opened(header, [&] { return BytesOfFile(header); }));
    return std::make_unique<Gtopo30Source>(file, bytes, frame);
}

std::unique_ptr<GridSource> OpenGtopo30(const CString& file, std::string_view bytes,
                                        std::string_view header) {
    return std::make_unique<Gtopo30Source>(file, BytesOfText(bytes),
                                           ReadHeader(HeaderName(file), BytesOfText(header)));
}
