#include "sample/terrain/ElevationGrid.h"

#include <cmath>
#include <utility>

ElevationGrid::ElevationGrid(int columns, double cellSize, MapPoint origin,
                             std::vector<double> elevations)
    : m_Columns(columns), m_Rows(static_cast<int>(elevations.size() / columns)),
      m_CellSize(cellSize), m_Origin(origin), m_Elevations(std::move(elevations)) {
    for (const double elevation : m_Elevations) {
        // Of a missing one and a number, both functions return the number.
        m_Lowest = std::fmin(m_Lowest, elevation);
        m_Highest = std::fmax(m_Highest, elevation);
    }
}
