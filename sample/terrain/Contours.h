#pragma once

#include <afx.h>

#include <optional>
#include <vector>

#include "sample/terrain/ElevationGrid.h"

/// Elevations between two bounds, both of them included, in metres.
struct ElevationRange {
    double low = 0;
    double high = 0;
};

/// Which contours are traced.
struct ContourOptions {
    double interval = 0;                 ///< m, above 0.
    double masterInterval = 0;           ///< m, above 0; need not be a multiple of the interval.
    std::optional<ElevationRange> range; ///< None: all that the terrain spans.
};

/// An elevation that contours are traced at.
struct ContourLevel {
    double elevation = 0; ///< m.
    bool master = false;  ///< It is a multiple of the master interval.

    bool operator==(const ContourLevel&) const = default;
};

/// A line of one elevation. Higher ground lies to the left of its direction.
struct Contour {
    ContourLevel level;
    bool closed = false;          ///< A ring: its last point is joined with the first.
    bool depression = false;      ///< A ring round lower ground.
    std::vector<MapPoint> points; ///< At least 2, of a ring at least 3; none equals the one before.
};

/// The interval that suits a terrain: the least of 1, 2 and 5 times the powers of ten, from 0.001 m
/// on, with which it has no more than some 50 contours.
double SuitableInterval(const ElevationRange& span);

/// Finds the levels: every multiple of the interval and every multiple of the master interval
/// that lies within the span and the range, bounds included. A level is the number that a person
/// would write, rounded to 12 digits: of 0.1 m it is 0.3, not 0.30000000000000004. So at 4000 m the
/// finest interval is 0.00000001 m; multiples of a finer one that are equal then are one level.
///
/// @param span   lowest and highest elevation of the terrain.
/// @param levels holds them afterwards, the lowest first, each once.
/// @return empty; else one line that says why there are none: an interval is not above 0, or there
///         would be more than 10,000 levels. `levels` is untouched then.
CString FindContourLevels(const ElevationRange& span, const ContourOptions& options,
                          std::vector<ContourLevel>& levels);

/// Traces the contours of a terrain.
///
/// Within a cell, which here is the square between four nodes, a contour is straight; it crosses
/// the cell's sides where the elevation between their ends, taken as linear, is the level's. Where
/// the contours of a saddle could turn either way, the mean of its four corners, rounded as levels
/// are, decides whether its middle is higher. In a cell with a missing corner there is no contour:
/// lines end at it.
///
/// A node at the very level counts as higher. So flat ground at a level lies within its contour,
/// and at the lowest elevation there is none; a ring that encloses nothing but a node or a ridge of
/// its level is left out, while a ridge that crosses the terrain has a line on either side, and one
/// that ends within it a line that goes along it and back.
///
/// @param contours hold them afterwards, the lowest level first; untouched on an error.
/// @return empty; else one line: what FindContourLevels says, or that the contours would cross
///         more than 50,000,000 cells or do not fit into memory.
CString TraceContours(const ElevationGrid& grid, const ContourOptions& options,
                      std::vector<Contour>& contours);
