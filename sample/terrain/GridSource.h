#pragma once

#include <afx.h>

#include "sample/terrain/ElevationGrid.h"

/// Why an elevation file is refused: one line that names it, and where there is one the line, or
/// the field of its header: "hills.asc(3): the header key is unknown: xllcentre".
struct RefusedFile {
    CString text;
};

/// Most elevations of a file.
constexpr int MostElevations = 100'000'000;

/// The smallest distance between nodes, in metres or degrees: the coordinates of closer ones, far
/// from zero as those of maps are, would differ by less than a double can tell.
constexpr double SmallestCell = 1e-6;

/// Where the elevations of a file are, in its unit: metres, or degrees.
struct GridFrame {
    int columns = 0;
    int rows = 0;
    MapPoint origin;       ///< The node in the south-west.
    double xSpacing = 1;   ///< Distance between neighbours from west to east, above 0.
    double ySpacing = 1;   ///< The same from south to north.
    double noData = -9999; ///< What stands where an elevation is missing; NaN where "nan" does.

    // The outer sides of the cells, of which each has its node in the middle. The last two are such
    // that the division of the whole length by the spacing gives no cell less than there are.
    double West() const;
    double South() const;
    double East() const;
    double North() const;
};

/// An elevation file that is read from its front: however long it is, no more than a block of it is
/// in memory.
class GridSource {
public:
    virtual ~GridSource() = default;
    GridSource(const GridSource&) = delete;
    GridSource& operator=(const GridSource&) = delete;

    const CString& File() const { return m_File; } ///< Its name.
    const GridFrame& Frame() const { return m_Frame; }

    /// The next elevation, m; NaN when it is missing. Row by row from the north, each from the
    /// west, as many as the frame has. Throws a RefusedFile.
    virtual double Next() = 0;

    /// Behind the last elevation: throws a RefusedFile when there is more in the file.
    virtual void End() = 0;

protected:
    explicit GridSource(const CString& file) : m_File(file) {}

    CString m_File;
    GridFrame m_Frame;
};
