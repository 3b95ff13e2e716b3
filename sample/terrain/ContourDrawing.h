#pragma once

#include <afx.h>

#include <string>
#include <vector>

#include "sample/terrain/Contours.h"
#include "sample/terrain/ElevationGrid.h"

/// The layers of a drawing of contours. Several may have one name, and are one layer then.
struct ContourLayers {
    CString contours = L"CONTOURS";
    CString masters = L"CONTOURS-MASTER";
    CString depressions = L"DEPRESSIONS"; ///< Rings round lower ground.
    CString masterDepressions = L"DEPRESSIONS-MASTER";
    CString labels = L"CONTOURS-TEXT";
};

/// How contours are labelled with their elevations. Lengths are those on paper.
struct ContourLabelStyle {
    double height = 2;    ///< Of a figure, mm, above 0.
    double spacing = 100; ///< Between two labels of a line, along it, mm, above 0.
    /// Decimals of the elevations, at least: 162.5 has one in any case. Below 0 counts as 0, above
    /// 6 as 6; there are never more than 6.
    int decimals = 0;
    bool mastersOnly = true; ///< Master contours alone have labels.
};

/// One label.
struct ContourLabel {
    MapPoint middle;      ///< On the line.
    double angle = 0;     ///< Degrees against the clock from the east, above -90 up to 90.
    double elevation = 0; ///< m.
    std::string text;     ///< "350".
};

/// What is drawn: contours, and their labels if there are any.
struct ContourDrawing {
    ContourDrawing() = default;
    /// An empty drawing of a terrain, which gives it its bounds.
    explicit ContourDrawing(const ElevationGrid& grid);

    CString title;
    std::vector<Contour> contours;
    std::vector<ContourLabel> labels;
    double labelHeight = 0; ///< Of a figure, m on the ground.
    ContourLayers layers;
    unsigned scale = 1000; ///< Denominator: 1000 m of ground are 1 m of paper. At least 1.
    MapPoint southWest;    ///< Bounds of the terrain.
    MapPoint northEast;
    int decimals = 3; ///< Of the coordinates in the files: a ten-thousandth of a cell counts.

    /// A length on paper, mm, as one on the ground, m.
    double Ground(double paper) const { return paper * scale / 1000; }

    const CString& Layer(const Contour& contour) const;
};

/// Labels the contours of a drawing at its scale. A label stands on its line, turned with it and
/// never upside down, where the line is straight enough and no other label is near. A line that is
/// too short has none.
///
/// @return empty; else one line that says why the drawing has no labels: the height or the spacing
///         is not above 0, or there would be more than 100,000 if each found its place. They are
///         untouched then.
/// Throws std::bad_alloc when they do not fit into memory.
CString LabelContours(const ContourLabelStyle& style, ContourDrawing& drawing);
