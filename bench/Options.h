// The record of the plain options dialog, and the texts that both competitors show in it.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace bench {

constexpr int checks = 8;
constexpr int methods = 4;

/// Text: the class that each competitor keeps its texts in.
template <class Text>
struct Options {
    Text name, project, surveyor, notes;
    int points = 0, lines = 0, sheet = 0;
    double lowest = 0, highest = 0, interval = 0, scale = 0, tolerance = 0;
    std::array<int, checks> flags = {};
    int method = -1;
    int units = -1;
    int layer = -1; // the selected row

    template <class Other>
    bool operator==(const Options<Other>& other) const {
        return name == other.name.c_str() && project == other.project.c_str() &&
               surveyor == other.surveyor.c_str() && notes == other.notes.c_str() &&
               points == other.points && lines == other.lines && sheet == other.sheet &&
               lowest == other.lowest && highest == other.highest && interval == other.interval &&
               scale == other.scale && tolerance == other.tolerance && flags == other.flags &&
               method == other.method && units == other.units && layer == other.layer;
    }
};

template <class Text>
Options<Text> someOptions() {
    return {L"North slope",
            L"Reservoir, second survey",
            L"M. Herrero",
            L"levelled twice, closed within tolerance",
            12840,
            317,
            4,
            -12.5,
            1873.25,
            2.5,
            1000,
            0.015,
            {1, 0, 1, 0, 1, 0, 1, 0},
            1,
            2,
            3};
}

/// Different from the other ones in every field.
template <class Text>
Options<Text> otherOptions() {
    return {L"South slope",
            L"Reservoir, third survey",
            L"A. Lindqvist",
            L"levelled once, not closed",
            9021,
            288,
            7,
            -3.75,
            1902.5,
            5,
            500,
            0.02,
            {0, 1, 0, 1, 0, 1, 0, 1},
            3,
            5,
            4};
}

struct LayerRow {
    std::wstring code;
    std::wstring description;
};

/// Rows for a list of two columns.
inline std::vector<LayerRow> layerRows(int number) {
    std::vector<LayerRow> rows;
    for (int i = 0; i < number; ++i)
        rows.push_back({L"LAY-" + std::to_wstring(1000 + i),
                        L"Layer of the drawing, number " + std::to_wstring(i)});
    return rows;
}

inline const std::vector<LayerRow> layersOfDialog = layerRows(20);

constexpr std::array<const wchar_t*, 8> unitNames = {
    L"Metre", L"Kilometre", L"Centimetre", L"Millimetre", L"Foot", L"Yard", L"Inch", L"Mile"};

constexpr int firstColumnWidth = 80;
constexpr int secondColumnWidth = 200;

} // namespace bench
