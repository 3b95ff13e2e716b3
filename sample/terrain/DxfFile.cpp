#include "sample/terrain/DxfFile.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "sample/OutputFile.h"
#include "sample/terrain/Decimal.h"

namespace {

constexpr size_t LongestLayerName = 31;
constexpr double WindowShape = 1.5; ///< Width to height of a CAD program's window, as a rule.

/// Colours by their number in CAD programs, seen on black as on white.
enum Colour { Brown = 34, Orange = 30, DarkBlue = 152, Blue = 150, BlackOrWhite = 7 };

struct Layer {
    std::string name;
    Colour colour;
};

Colour ColourOf(const Contour& contour) {
    if (contour.depression)
        return contour.level.master ? Blue : DarkBlue;
    return contour.level.master ? Orange : Brown;
}

/// The drawing's layers; of those of one name the first. Layer 0 is in every file.
std::vector<Layer> LayersOf(const ContourLayers& layers) {
    std::vector<Layer> all = {{"0", BlackOrWhite}};
    const auto add = [&](const CString& name, Colour colour) {
        std::string cleaned = DxfLayerName(name);
        if (std::ranges::find(all, cleaned, &Layer::name) == all.end())
            all.push_back({std::move(cleaned), colour});
    };
    add(layers.contours, Brown);
    add(layers.masters, Orange);
    add(layers.depressions, DarkBlue);
    add(layers.masterDepressions, Blue);
    add(layers.labels, BlackOrWhite);
    return all;
}

/// The file as it is built: groups of a code and a value, each on a line of its own.
class Writer {
public:
    Writer(OutputFile& file, const ContourDrawing& drawing)
        : m_File(file), m_Drawing(drawing), m_Layers(LayersOf(drawing.layers)) {}

    void Write() {
        Header();
        Tables();
        Section("ENTITIES");
        for (const Contour& contour : m_Drawing.contours)
            Polyline(contour);
        const std::string layer = DxfLayerName(m_Drawing.layers.labels);
        for (const ContourLabel& label : m_Drawing.labels)
            Text(label, layer);
        Group(0, "ENDSEC");
        Group(0, "EOF");
    }

private:
    void Group(int code, std::string_view value) {
        m_File << std::to_string(code) << "\r\n" << value << "\r\n";
    }
    void Group(int code, int value) { Group(code, std::to_string(value)); }
    void Length(int code, double metres) { Group(code, Decimal(metres, m_Drawing.decimals)); }

    /// A place is written into the groups 10, 20 and 30; with `behind` = 1 into 11, 21 and 31.
    void Place(const MapPoint& point, double elevation, int behind = 0) {
        Length(10 + behind, point.x);
        Length(20 + behind, point.y);
        Group(30 + behind, Elevation(elevation));
    }
    /// With six decimals, whatever the coordinates have: levels may be far finer than cells.
    static std::string Elevation(double elevation) { return Decimal(elevation, 6); }

    void Section(std::string_view name) {
        Group(0, "SECTION");
        Group(2, name);
    }

    void Table(std::string_view name, size_t count) {
        Group(0, "TABLE");
        Group(2, name);
        Group(70, static_cast<int>(count));
    }

    void Header() {
        double lowest = 0, highest = 0;
        if (!m_Drawing.contours.empty()) {
            lowest = m_Drawing.contours.front().level.elevation;
            highest = m_Drawing.contours.back().level.elevation;
        }
        Section("HEADER");
        Group(9, "$ACADVER");
        Group(1, "AC1009");
        Group(9, "$EXTMIN");
        Place(m_Drawing.southWest, lowest);
        Group(9, "$EXTMAX");
        Place(m_Drawing.northEast, highest);
        Group(0, "ENDSEC");
    }

    /// What is seen when the file is opened: all of the terrain.
    void View() {
        const MapPoint &low = m_Drawing.southWest, &high = m_Drawing.northEast;
        const double width = high.x - low.x, height = high.y - low.y;
        Table("VPORT", 1);
        Group(0, "VPORT");
        Group(2, "*ACTIVE");
        Group(70, 0);
        Group(10, "0.0"); // the whole window
        Group(20, "0.0");
        Group(11, "1.0");
        Group(21, "1.0");
        Length(12, low.x + width / 2); // the middle of the view
        Length(22, low.y + height / 2);
        Group(16, "0.0"); // from above
        Group(26, "0.0");
        Group(36, "1.0");
        Length(40, 1.1 * std::max({height, width / WindowShape, 1.0}));
        Group(41, Decimal(WindowShape, 1));
        Group(0, "ENDTAB");
    }

    void Tables() {
        Section("TABLES");
        View();
        Table("LTYPE", 1);
        Group(0, "LTYPE");
        Group(2, "CONTINUOUS");
        Group(70, 0);
        Group(3, "Solid line");
        Group(72, 65); // how it is aligned: always this
        Group(73, 0);  // without dashes
        Group(40, "0.0");
        Group(0, "ENDTAB");

        Table("LAYER", m_Layers.size());
        for (const Layer& layer : m_Layers) {
            Group(0, "LAYER");
            Group(2, layer.name);
            Group(70, 0);
            Group(62, layer.colour);
            Group(6, "CONTINUOUS");
        }
        Group(0, "ENDTAB");

        Table("STYLE", 1);
        Group(0, "STYLE");
        Group(2, "STANDARD");
        Group(70, 0);
        Group(40, "0.0"); // no height of its own
        Group(41, "1.0");
        Group(50, "0.0");
        Group(71, 0);
        Group(42, "2.5");
        Group(3, "txt");
        Group(4, "");
        Group(0, "ENDTAB");
        Group(0, "ENDSEC");
    }

    /// A colour is written only where the layer has another one: else the user could not change it
    /// by changing the layer's.
    void LayerAndColour(const std::string& layer, Colour colour) {
        Group(8, layer);
        if (std::ranges::find(m_Layers, layer, &Layer::name)->colour != colour)
            Group(62, colour);
    }

    void Polyline(const Contour& contour) {
        const std::string layer = DxfLayerName(m_Drawing.Layer(contour));
        Group(0, "POLYLINE");
        LayerAndColour(layer, ColourOf(contour));
        Group(66, 1); // vertices follow
        Place({}, contour.level.elevation);
        Group(70, contour.closed ? 1 : 0);
        for (const MapPoint& point : contour.points) {
            Group(0, "VERTEX");
            Group(8, layer);
            Place(point, contour.level.elevation);
        }
        Group(0, "SEQEND");
        Group(8, layer);
    }

    void Text(const ContourLabel& label, const std::string& layer) {
        Group(0, "TEXT");
        LayerAndColour(layer, BlackOrWhite);
        Place(label.middle, label.elevation);
        Group(40, FineDecimal(m_Drawing.labelHeight, m_Drawing.decimals));
        Group(1, label.text);
        Group(50, Decimal(label.angle, 2));
        Group(72, 1); // the middle of the text, across and
        Group(73, 2); // upright, stands at the second place
        Place(label.middle, label.elevation, 1);
    }

    OutputFile& m_File;
    const ContourDrawing& m_Drawing;
    const std::vector<Layer> m_Layers;
};

} // namespace

CString WriteDxfFile(const CString& file, const ContourDrawing& drawing) {
    return WriteTextFile(file, [&](OutputFile& output) { Writer(output, drawing).Write(); });
}

std::string DxfLayerName(const CString& name) {
    std::string cleaned;
    for (const wchar_t character : std::wstring_view(name)) {
        const bool large = character >= L'A' && character <= L'Z';
        const bool digit = character >= L'0' && character <= L'9';
        if (character >= L'a' && character <= L'z')
            cleaned += static_cast<char>(character - L'a' + 'A');
        else if (large || digit || character == L'$' || character == L'-')
            cleaned += static_cast<char>(character);
        else
            cleaned += '_';
    }
    cleaned.resize(std::min(cleaned.size(), LongestLayerName));
    return cleaned.empty() ? "0" : cleaned;
}
