#pragma once

#include <cstddef>
#include <limits>
#include <vector>

/// A place on the map.
struct MapPoint {
    double x = 0; ///< Easting, m.
    double y = 0; ///< Northing, m.

    bool operator==(const MapPoint&) const = default;
};

/// A terrain: elevations on a regular grid of square cells, in metres. An elevation stands at the
/// centre of its cell, the node. Columns are counted from 0 in the west, rows from 0 in the north.
class ElevationGrid {
public:
    /// The elevation of a node that has none.
    static constexpr double Missing = std::numeric_limits<double>::quiet_NaN();

    ElevationGrid() = default;

    /// @param columns    at least 1.
    /// @param cellSize   distance between neighbours, m, above 0.
    /// @param origin     the node in the south-west.
    /// @param elevations m, row by row from the north, each from the west; NaN is a missing one.
    ///                   As many as full rows hold.
    ElevationGrid(int columns, double cellSize, MapPoint origin, std::vector<double> elevations);

    int Columns() const { return m_Columns; }
    int Rows() const { return m_Rows; }
    double CellSize() const { return m_CellSize; } ///< m.

    /// Where a node is, m. A fraction is a place between nodes.
    MapPoint At(double column, double row) const {
        return {m_Origin.x + column * m_CellSize, m_Origin.y + (m_Rows - 1 - row) * m_CellSize};
    }

    /// Elevation of a node, m; NaN when it is missing.
    double Elevation(int column, int row) const {
        return m_Elevations[static_cast<std::size_t>(row) * m_Columns + column];
    }

    double Lowest() const { return m_Lowest; }   ///< m; NaN when every elevation is missing.
    double Highest() const { return m_Highest; } ///< m; NaN when every elevation is missing.

private:
    int m_Columns = 0;
    int m_Rows = 0;
    double m_CellSize = 1;
    MapPoint m_Origin;
    std::vector<double> m_Elevations;
    double m_Lowest = Missing;
    double m_Highest = Missing;
};
