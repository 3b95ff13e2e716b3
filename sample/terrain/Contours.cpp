#include "sample/terrain/Contours.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <new>
#include <string>
#include <utility>

#include "sample/terrain/Decimal.h"

namespace {

constexpr size_t MostLevels = 10'000;
constexpr size_t MostCrossings = 50'000'000;
constexpr int LevelDigits = 12;
constexpr double MostSuitable = 50;
constexpr double FinestSuitable = 0.001; // m

/// A number as a person would write it.
double Rounded(double number) {
    char text[32];
    const auto written = std::to_chars(text, text + sizeof text, number,
                                       std::chars_format::scientific, LevelDigits - 1);
    std::from_chars(text, written.ptr, number);
    return number + 0.0; // and no negative zero
}

/// The multiples of an interval between two bounds; false when there are too many.
bool FindMultiples(double interval, const ElevationRange& bounds, std::vector<double>& multiples) {
    if (!(bounds.low <= bounds.high))
        return true;
    const double first = std::floor(bounds.low / interval);
    // One more on each side: rounding could have lost the multiple that is a bound itself.
    const double count = std::floor(bounds.high / interval) - first + 2;
    if (!(count <= MostLevels + 3.0))
        return false;
    for (double step = 0; step < count; ++step) {
        const double multiple = Rounded((first + step) * interval);
        const bool isNew = multiples.empty() || multiple > multiples.back();
        if (isNew && multiple >= bounds.low && multiple <= bounds.high)
            multiples.push_back(multiple);
    }
    return true;
}

/// Where a side of a cell is crossed, in columns and rows.
struct GridPoint {
    double column;
    double row;
};

/// The square between four nodes, by its node in the north-west. Its corners are numbered against
/// the clock from the south-west; so are its sides, each from the corner of its number on.
struct Cell {
    int column;
    int row;

    bool operator==(const Cell&) const = default;
};

struct Offset {
    int column;
    int row;
};
constexpr Offset Corners[] = {{0, 1}, {1, 1}, {1, 0}, {0, 0}};
constexpr Offset Neighbours[] = {{0, 1}, {1, 0}, {0, -1}, {-1, 0}};

/// Twice the area that a ring encloses, in cells: positive when it runs with the clock. Exact, and
/// so zero, for a ring that goes along nodes and returns the same way.
double TwiceArea(const std::vector<GridPoint>& ring) {
    double area = 0;
    const GridPoint& origin = ring.front();
    for (size_t index = 2; index < ring.size(); ++index) {
        const GridPoint &from = ring[index - 1], &to = ring[index];
        area += (from.column - origin.column) * (to.row - origin.row) -
                (to.column - origin.column) * (from.row - origin.row);
    }
    return area;
}

/// A line enters a cell through a side that falls from its first corner to its second, and leaves
/// it through one that rises: so higher ground is on its left. At one level each side is crossed
/// at most once, and what leaves a cell enters the next one: lines are joined by following them.
class Tracer {
public:
    Tracer(const ElevationGrid& grid, const std::vector<ContourLevel>& levels)
        : m_Grid(grid), m_Levels(levels), m_CellColumns(grid.Columns() - 1),
          m_CellRows(grid.Rows() - 1) {}

    /// How often a cell is crossed by a level, all in all.
    size_t CountCrossings() {
        // Counted by the first and the last level of each cell, not level by level: a steep cell
        // may be crossed by thousands.
        std::vector<std::int64_t> changes(m_Levels.size() + 1, 0);
        ForEachCrossed([&](Cell, size_t first, size_t behind) {
            ++changes[first];
            --changes[behind];
        });
        m_First.assign(1, 0);
        std::int64_t cells = 0;
        for (size_t level = 0; level < m_Levels.size(); ++level) {
            cells += changes[level];
            m_First.push_back(m_First.back() + cells);
        }
        return m_First.back();
    }

    /// Traces them, after they were counted.
    std::vector<Contour> Trace() {
        // Sorted by their levels, so that a level costs only the cells that it crosses.
        std::vector<Cell> crossed(m_First.back());
        std::vector<size_t> next(m_First.begin(), m_First.end() - 1);
        ForEachCrossed([&](Cell cell, size_t first, size_t behind) {
            for (size_t level = first; level < behind; ++level)
                crossed[next[level]++] = cell;
        });
        m_Pending.assign(static_cast<size_t>(m_CellColumns) * m_CellRows, 0);

        for (size_t level = 0; level < m_Levels.size(); ++level) {
            m_Level = m_Levels[level];
            const auto begin = crossed.cbegin() + m_First[level];
            const auto end = crossed.cbegin() + m_First[level + 1];
            std::for_each(begin, end, [&](Cell cell) { Pending(cell) = Entries(cell); });
            // First the lines that begin at an end of the terrain: what is left then are rings.
            std::for_each(begin, end, [&](Cell cell) { FollowAll(cell, true); });
            std::for_each(begin, end, [&](Cell cell) { FollowAll(cell, false); });
        }
        return std::move(m_Contours);
    }

private:
    double CornerElevation(Cell cell, int corner) const {
        const Offset& offset = Corners[corner % 4];
        return m_Grid.Elevation(cell.column + offset.column, cell.row + offset.row);
    }

    bool IsAbove(Cell cell, int corner) const {
        return CornerElevation(cell, corner) >= m_Level.elevation;
    }

    /// Whether there is such a cell, and no corner of it is missing.
    bool IsComplete(Cell cell) const {
        if (cell.column < 0 || cell.column >= m_CellColumns || cell.row < 0 ||
            cell.row >= m_CellRows)
            return false;
        return !std::isnan(CornerElevation(cell, 0) + CornerElevation(cell, 1) +
                           CornerElevation(cell, 2) + CornerElevation(cell, 3));
    }

    static Cell Across(Cell cell, int side) {
        return {cell.column + Neighbours[side].column, cell.row + Neighbours[side].row};
    }

    /// Gives `take` each cell that levels cross, the first of these, and the one behind the last.
    template <class Take>
    void ForEachCrossed(const Take& take) const {
        const auto below = [](double elevation, const ContourLevel& level) {
            return elevation < level.elevation;
        };
        for (Cell cell{0, 0}; cell.row < m_CellRows; ++cell.row) {
            for (cell.column = 0; cell.column < m_CellColumns; ++cell.column) {
                if (!IsComplete(cell))
                    continue;
                const auto [lowest, highest] =
                    std::minmax({CornerElevation(cell, 0), CornerElevation(cell, 1),
                                 CornerElevation(cell, 2), CornerElevation(cell, 3)});
                const auto first =
                    std::upper_bound(m_Levels.begin(), m_Levels.end(), lowest, below);
                const auto behind = std::upper_bound(first, m_Levels.end(), highest, below);
                if (first != behind)
                    take(cell, first - m_Levels.begin(), behind - m_Levels.begin());
            }
        }
    }

    /// One bit for each side through which a line enters that has not been followed yet.
    std::uint8_t& Pending(Cell cell) {
        return m_Pending[static_cast<size_t>(cell.row) * m_CellColumns + cell.column];
    }

    std::uint8_t Entries(Cell cell) const {
        int entries = 0;
        for (int side = 0; side < 4; ++side) {
            if (IsAbove(cell, side) && !IsAbove(cell, side + 1))
                entries |= 1 << side;
        }
        return static_cast<std::uint8_t>(entries);
    }

    /// The side through which the line leaves that has entered through this one.
    int Exit(Cell cell, int entry) const {
        const auto rises = [&](int side) {
            return !IsAbove(cell, side) && IsAbove(cell, side + 1);
        };
        // Against the clock from the entry comes the lower ground, to the right of the line. Of
        // the two exits of a saddle, the nearest leaves the higher corners joined.
        const int nearest = rises(entry + 1) ? 1 : rises(entry + 2) ? 2 : 3;
        const bool saddle = nearest == 1 && rises(entry + 3);
        return (entry + (saddle && !IsMiddleAbove(cell) ? 3 : nearest)) % 4;
    }

    bool IsMiddleAbove(Cell cell) const {
        // The same sum whichever way the cell is turned, and rounded as the level is: a mean that
        // is the level itself must not fall short of it.
        const double sum = (CornerElevation(cell, 0) + CornerElevation(cell, 2)) +
                           (CornerElevation(cell, 1) + CornerElevation(cell, 3));
        return Rounded(sum / 4) >= m_Level.elevation;
    }

    /// Where a side is crossed: reckoned from its higher end, and so the same for both its cells.
    GridPoint Crossing(Cell cell, int side) const {
        int high = side, low = (side + 1) % 4;
        if (!IsAbove(cell, high))
            std::swap(high, low);
        const double top = CornerElevation(cell, high);
        const double part = (top - m_Level.elevation) / (top - CornerElevation(cell, low));
        const Offset &from = Corners[high], &to = Corners[low];
        return {cell.column + from.column + part * (to.column - from.column),
                cell.row + from.row + part * (to.row - from.row)};
    }

    void FollowAll(Cell cell, bool onlyFromAnEnd) {
        for (int side = 0; side < 4; ++side) {
            const bool pending = (Pending(cell) & (1 << side)) != 0;
            if (pending && !(onlyFromAnEnd && IsComplete(Across(cell, side))))
                Follow(cell, side);
        }
    }

    void Follow(const Cell start, const int startEntry) {
        m_Line.clear();
        Cell cell = start;
        int entry = startEntry;
        do {
            Pending(cell) &= static_cast<std::uint8_t>(~(1 << entry));
            m_Line.push_back(Crossing(cell, entry));
            const int exit = Exit(cell, entry);
            const Cell next = Across(cell, exit);
            if (!IsComplete(next)) {
                m_Line.push_back(Crossing(cell, exit));
                Keep(false);
                return;
            }
            cell = next;
            entry = (exit + 2) % 4;
        } while (cell != start || entry != startEntry);
        Keep(true);
    }

    /// Adds the line, on the map, to the contours, unless it encloses nothing.
    void Keep(bool closed) {
        Contour contour{m_Level, closed, false, {}};
        if (closed) {
            const double area = TwiceArea(m_Line);
            if (area == 0)
                return;
            contour.depression = area > 0;
        }
        std::vector<MapPoint>& points = contour.points;
        points.reserve(m_Line.size());
        for (const GridPoint& point : m_Line)
            points.push_back(m_Grid.At(point.column, point.row));
        // Through a node at the very level the line comes over several sides.
        points.erase(std::unique(points.begin(), points.end()), points.end());
        if (closed && points.size() > 1 && points.front() == points.back())
            points.pop_back();
        if (points.size() >= (closed ? 3u : 2u))
            m_Contours.push_back(std::move(contour));
    }

    const ElevationGrid& m_Grid;
    const std::vector<ContourLevel>& m_Levels;
    const int m_CellColumns;
    const int m_CellRows;
    std::vector<size_t> m_First; ///< For each level, how many crossings those below it have.
    std::vector<std::uint8_t> m_Pending;
    ContourLevel m_Level;
    std::vector<GridPoint> m_Line;
    std::vector<Contour> m_Contours;
};

CString Text(const std::string& ascii) {
    return CString(ascii.c_str());
}

} // namespace

double SuitableInterval(const ElevationRange& span) {
    const double least = std::max(Rounded(span.high - span.low) / MostSuitable, FinestSuitable);
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        const double interval = Rounded(factor * power);
        if (interval >= least)
            return interval;
    }
    return Rounded(10 * power);
}

CString FindContourLevels(const ElevationRange& span, const ContourOptions& options,
                          std::vector<ContourLevel>& levels) {
    if (!(options.interval > 0) || !(options.masterInterval > 0))
        return L"the intervals of contours have to be above 0";
    ElevationRange bounds = span;
    if (options.range) {
        bounds.low = std::max(bounds.low, options.range->low);
        bounds.high = std::min(bounds.high, options.range->high);
    }

    std::vector<double> plain, masters, all;
    const bool few = FindMultiples(options.interval, bounds, plain) &&
                     FindMultiples(options.masterInterval, bounds, masters);
    if (few)
        std::ranges::set_union(plain, masters, std::back_inserter(all));
    if (!few || all.size() > MostLevels) {
        return Text("there are more than " + std::to_string(MostLevels) + " contours from " +
                    Decimal(bounds.low, 2) + " to " + Decimal(bounds.high, 2) +
                    " m: choose a larger interval");
    }
    levels.clear();
    for (const double elevation : all)
        levels.push_back({elevation, std::ranges::binary_search(masters, elevation)});
    return {};
}

CString TraceContours(const ElevationGrid& grid, const ContourOptions& options,
                      std::vector<Contour>& contours) {
    std::vector<ContourLevel> levels;
    const CString refusal = FindContourLevels({grid.Lowest(), grid.Highest()}, options, levels);
    if (!refusal.IsEmpty())
        return refusal;
    try {
        Tracer tracer(grid, levels);
        if (tracer.CountCrossings() > MostCrossings) {
            return Text("the contours cross more than " + std::to_string(MostCrossings) +
                        " cells: choose a larger interval");
        }
        contours = tracer.Trace();
        return {};
    } catch (const std::bad_alloc&) {
        return L"there is not enough memory for the contours: choose a larger interval";
    }
}
