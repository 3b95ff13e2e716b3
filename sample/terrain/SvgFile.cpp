#include "sample/terrain/SvgFile.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include <windows.h>

#include "sample/OutputFile.h"
#include "sample/terrain/Decimal.h"

namespace {

/// A text in UTF-8 that may stand between marks and in quotes.
std::string Escaped(const CString& text) {
    std::wstring escaped;
    for (const wchar_t character : std::wstring_view(text)) {
        if (character == L'&')
            escaped += L"&amp;";
        else if (character == L'<')
            escaped += L"&lt;";
        else if (character == L'>')
            escaped += L"&gt;";
        else if (character == L'"')
            escaped += L"&quot;";
        else if (character < L' ' || character >= 0xFFFE)
            escaped += L' '; // most of them cannot stand in XML at all
        else
            escaped += character;
    }
    const int length = static_cast<int>(escaped.size());
    std::string bytes(escaped.size() * 3, '\0');
    // Half a pair becomes the replacement character.
    bytes.resize(WideCharToMultiByte(CP_UTF8, 0, escaped.data(), length, bytes.data(),
                                     static_cast<int>(bytes.size()), nullptr, nullptr));
    return bytes;
}

/// How a kind of contours is drawn.
struct Pen {
    bool master;
    bool depression;
    std::string_view id;
    std::string_view colour;
    double width; ///< mm on paper.
};

/// In their order: what is drawn later lies above.
constexpr Pen Pens[] = {{false, false, "contours", "#b5794a", 0.13},
                        {false, true, "depressions", "#4f8fbf", 0.13},
                        {true, false, "masters", "#7a4519", 0.3},
                        {true, true, "master-depressions", "#1f5f93", 0.3}};

class Writer {
public:
    Writer(OutputFile& file, const ContourDrawing& drawing) : m_File(file), m_Drawing(drawing) {}

    void Write() {
        // Programs refuse a drawing without any width or height.
        const double least = std::pow(10, -m_Drawing.decimals);
        const double width = std::max(m_Drawing.northEast.x - m_Drawing.southWest.x, least);
        const double height = std::max(m_Drawing.northEast.y - m_Drawing.southWest.y, least);
        m_File << R"(<?xml version="1.0" encoding="UTF-8"?>)"
                  "\n"
               << R"(<svg xmlns="http://www.w3.org/2000/svg" width=")" << Paper(width)
               << R"(mm" height=")" << Paper(height) << R"(mm" viewBox="0 0 )" << Length(width)
               << " " << Length(height) << "\">\n"
               << "<title>" << Escaped(m_Drawing.title) << "</title>\n"
               << "<desc>Metres east and south of " << Length(m_Drawing.southWest.x) << " "
               << Length(m_Drawing.northEast.y) << "; scale 1:" << std::to_string(m_Drawing.scale)
               << "</desc>\n"
               << R"(<rect width="100%" height="100%" fill="#fffefa"/>)"
                  "\n";
        for (const Pen& pen : Pens)
            Contours(pen);
        Labels();
        m_File << "</svg>\n";
    }

private:
    std::string Length(double metres) const { return Decimal(metres, m_Drawing.decimals); }
    std::string Paper(double metres) const {
        return FineDecimal(metres * 1000 / m_Drawing.scale, 3);
    }
    std::string Width(double paper) const {
        return FineDecimal(m_Drawing.Ground(paper), m_Drawing.decimals + 2);
    }
    std::string X(const MapPoint& point) const { return Length(point.x - m_Drawing.southWest.x); }
    std::string Y(const MapPoint& point) const { return Length(m_Drawing.northEast.y - point.y); }

    void Contours(const Pen& pen) {
        bool begun = false;
        for (const Contour& contour : m_Drawing.contours) {
            if (contour.level.master != pen.master || contour.depression != pen.depression)
                continue;
            if (!begun) {
                m_File << "<g id=\"" << pen.id << "\" fill=\"none\" stroke=\"" << pen.colour
                       << "\" stroke-width=\"" << Width(pen.width)
                       << "\" stroke-linejoin=\"round\">\n<title>"
                       << Escaped(m_Drawing.Layer(contour)) << "</title>\n";
                begun = true;
            }
            Line(contour);
        }
        if (begun)
            m_File << "</g>\n";
    }

    void Line(const Contour& contour) {
        // Six decimals are those of the finest labels.
        m_File << "<path data-elevation=\"" << Decimal(contour.level.elevation, 6) << "\" d=\"M";
        std::string_view between;
        for (const MapPoint& point : contour.points) {
            m_File << between << X(point) << "," << Y(point);
            between = " ";
        }
        m_File << (contour.closed ? "z\"/>\n" : "\"/>\n");
    }

    void Labels() {
        if (m_Drawing.labels.empty())
            return;
        // A figure is 0.72 of its font's size in height. Its middle is set by hand, since programs
        // differ in where they put it.
        const double height = m_Drawing.labelHeight;
        const int decimals = m_Drawing.decimals + 2;
        m_File << R"(<g id="labels" font-family="sans-serif" font-size=")"
               << FineDecimal(height / 0.72, decimals)
               << R"(" text-anchor="middle" fill="#5a3210" stroke="#fffefa" stroke-width=")"
               << FineDecimal(height / 2, decimals)
               << R"(" stroke-linejoin="round" paint-order="stroke">)"
                  "\n<title>"
               << Escaped(m_Drawing.layers.labels) << "</title>\n";
        for (const ContourLabel& label : m_Drawing.labels) {
            m_File << "<text transform=\"translate(" << X(label.middle) << " " << Y(label.middle)
                   << ") rotate(" << Decimal(-label.angle, 2) << ")\" y=\""
                   << FineDecimal(height / 2, decimals) << "\">" << label.text << "</text>\n";
        }
        m_File << "</g>\n";
    }

    OutputFile& m_File;
    const ContourDrawing& m_Drawing;
};

} // namespace

CString WriteSvgFile(const CString& file, const ContourDrawing& drawing) {
    return WriteTextFile(file, [&](OutputFile& output) { Writer(output, drawing).Write(); });
}
