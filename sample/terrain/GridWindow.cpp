#include "sample/terrain/GridWindow.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>
#include <string_view>

#include "sample/OutputFile.h"
#include "sample/TextFile.h"

namespace {

/// The file along one axis.
struct Side {
    double low;
    double high;
    double spacing;
};

TakenNodes Taken(const Side& side, double low, double high, int ratio) {
    const long long step = std::abs(static_cast<long long>(ratio));
    low = std::max(low, side.low);
    high = std::min(high, side.high);
    const double steps = (high - low) / (static_cast<double>(step) * side.spacing);
    if (step == 0 || !(steps >= 1))
        return {};
    // A node lies half a spacing behind the beginning of its cell. The last one that is taken is as
    // far from the end of the file at least, which is room enough for any rounding.
    const double first = std::ceil((low - side.low) / side.spacing - 0.5);
    return {static_cast<int>(first), step, static_cast<int>(steps)};
}

/// A number with as many digits as tell it from every other.
std::string Digits(double number) {
    char text[32];
    return std::string(text, std::to_chars(text, text + sizeof text, number).ptr);
}

/// "437200, 4486300"
std::wstring Shown(const MapPoint& point) {
    const std::string text = Digits(point.x) + ", " + Digits(point.y);
    return std::wstring(text.begin(), text.end());
}

/// Why no node is taken.
std::wstring NoNode(const GridFrame& frame, const GridWindow& window) {
    if (window.ratio == 0)
        return L"the ratio is 0";
    const bool outside = !(window.low.x < frame.East() && window.high.x > frame.West() &&
                           window.low.y < frame.North() && window.high.y > frame.South());
    const std::wstring from =
        L"the window from " + Shown(window.low) + L" to " + Shown(window.high);
    return from + (outside ? L" lies outside of the file"
                           : L" is smaller than the distance between two nodes that are taken");
}

void Write(OutputFile& output, GridSource& source, const TakenNodes& columns,
           const TakenNodes& rows) {
    const GridFrame& frame = source.Frame();
    const std::string missing = Digits(frame.noData);
    output << "ncols " << std::to_string(columns.count) << "\nnrows " << std::to_string(rows.count)
           << "\nxllcenter " << Digits(frame.origin.x + columns.first * frame.xSpacing)
           << "\nyllcenter " << Digits(frame.origin.y + rows.first * frame.ySpacing)
           << "\ncellsize " << Digits(static_cast<double>(columns.step) * frame.xSpacing)
           << "\nNODATA_value " << missing << "\n";
    // From the north, as the file is read.
    for (int row = frame.rows - 1; row >= 0; --row) {
        std::string_view between;
        for (int column = 0; column < frame.columns; ++column) {
            const double elevation = source.Next();
            if (!rows.Has(row) || !columns.Has(column))
                continue;
            output << between << (std::isnan(elevation) ? missing : Digits(elevation));
            between = " ";
        }
        if (rows.Has(row))
            output << "\n";
    }
    source.End();
}

} // namespace

TakenNodes TakenColumns(const GridFrame& frame, const GridWindow& window) {
    return Taken({frame.West(), frame.East(), frame.xSpacing}, window.low.x, window.high.x,
                 window.ratio);
}

TakenNodes TakenRows(const GridFrame& frame, const GridWindow& window) {
    return Taken({frame.South(), frame.North(), frame.ySpacing}, window.low.y, window.high.y,
                 window.ratio);
}

CString WriteGridWindow(const CString& file, GridSource& source, const GridWindow& window) {
    const GridFrame& frame = source.Frame();
    const TakenNodes columns = TakenColumns(frame, window);
    const TakenNodes rows = TakenRows(frame, window);
    if (columns.count == 0 || rows.count == 0)
        return Refusal(source.File(), NoNode(frame, window));
    if (frame.xSpacing != frame.ySpacing) {
        return Refusal(source.File(), L"its cells are not square, as those of an ASCII grid are: " +
                                          Shown({frame.xSpacing, frame.ySpacing}));
    }
    try {
        return WriteTextFile(file,
                             [&](OutputFile& output) { Write(output, source, columns, rows); });
    } catch (const RefusedFile& refused) {
        return refused.text;
    }
}
