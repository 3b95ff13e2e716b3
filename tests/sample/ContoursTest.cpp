#include "sample/terrain/Contours.h"

#include "kit/kit.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numbers>
#include <random>
#include <utility>
#include <vector>

#include "sample/terrain/AscGridFile.h"

using kit::utf8;

namespace {

using Levels = std::vector<ContourLevel>;
using Points = std::vector<MapPoint>;

/// A terrain whose elevations are a function of the place.
template <class Elevation>
ElevationGrid Surface(int columns, int rows, double cell, MapPoint origin,
                      const Elevation& elevation) {
    std::vector<double> elevations;
    for (int row = rows - 1; row >= 0; --row) {
        for (int column = 0; column < columns; ++column)
            elevations.push_back(elevation(origin.x + column * cell, origin.y + row * cell));
    }
    return ElevationGrid(columns, cell, origin, std::move(elevations));
}

/// The contours of a terrain at one level. As the only level it is a master contour.
std::vector<Contour> At(const ElevationGrid& grid, double level) {
    std::vector<Contour> contours;
    // Zero is a multiple of every interval.
    const double interval = level == 0 ? 1e6 : std::abs(level);
    EXPECT_EQ(TraceContours(grid, {interval, interval, ElevationRange{level, level}}, contours),
              L"");
    for (const Contour& contour : contours)
        EXPECT_EQ(contour.level, (ContourLevel{level, true}));
    return contours;
}

std::vector<Contour> Traced(const ElevationGrid& grid, const ContourOptions& options) {
    std::vector<Contour> contours;
    EXPECT_EQ(TraceContours(grid, options, contours), L"");
    return contours;
}

double Length(const Contour& contour) {
    double length = 0;
    const size_t count = contour.points.size();
    for (size_t index = contour.closed ? 0 : 1; index < count; ++index) {
        const MapPoint &to = contour.points[index],
                       &from = contour.points[(index + count - 1) % count];
        length += std::hypot(to.x - from.x, to.y - from.y);
    }
    return length;
}

/// Positive when the ring runs against the clock.
double Area(const Contour& ring) {
    double area = 0;
    const size_t count = ring.points.size();
    for (size_t index = 0; index < count; ++index) {
        const MapPoint &from = ring.points[index], &to = ring.points[(index + 1) % count];
        area += (from.x * to.y - to.x * from.y) / 2;
    }
    return area;
}

Levels Found(const ElevationRange& span, const ContourOptions& options) {
    Levels levels;
    EXPECT_EQ(FindContourLevels(span, options, levels), L"");
    return levels;
}

std::string LevelsRefused(const ElevationRange& span, const ContourOptions& options) {
    Levels levels = {{7, false}};
    const CString refusal = FindContourLevels(span, options, levels);
    EXPECT_EQ(levels, (Levels{{7, false}})) << "they were touched";
    return utf8(static_cast<LPCWSTR>(refusal));
}

} // namespace

TEST(ContourLevels, OfTheSuitableIntervalAreAFewDozen) {
    const struct {
        double low, high, interval;
    } cases[] = {{160.21, 395.42, 5}, {250.1, 300.1, 1}, {0, 50, 1},      {0, 50.01, 2},
                 {-60, 40, 2},        {0, 100.01, 5},    {-100, 151, 10}, {3, 3, 1e-3},
                 {0, 0.06, 2e-3},     {-1e9, 1e9, 5e7}};
    for (const auto& one : cases)
        EXPECT_EQ(SuitableInterval({one.low, one.high}), one.interval) << one.high;
}

TEST(ContourLevels, AreTheMultiplesOfBothIntervals) {
    EXPECT_EQ(Found({0, 21}, {5, 7, {}}), (Levels{{0, true},
                                                  {5, false},
                                                  {7, true},
                                                  {10, false},
                                                  {14, true},
                                                  {15, false},
                                                  {20, false},
                                                  {21, true}}));
    EXPECT_EQ(Found({-12, 11}, {5, 10, {}}),
              (Levels{{-10, true}, {-5, false}, {0, true}, {5, false}, {10, true}}));
    EXPECT_EQ(Found({101, 109}, {10, 10, {}}), Levels{});
}

TEST(ContourLevels, OfTenthsAreTheNumbersThatAPersonWrites) {
    const Levels levels = Found({0.1, 1.1}, {0.1, 0.5, {}});
    const Levels expected = {{0.1, false}, {0.2, false}, {0.3, false}, {0.4, false},
                             {0.5, true},  {0.6, false}, {0.7, false}, {0.8, false},
                             {0.9, false}, {1.0, true},  {1.1, false}};
    EXPECT_EQ(levels, expected);

    // Far up, the multiples of 0.3 meet those of 0.1 as well.
    for (const ContourLevel& level : Found({4000, 4100}, {0.1, 0.3, {}}))
        EXPECT_EQ(level.master, std::lround(level.elevation * 10) % 3 == 0) << level.elevation;
    EXPECT_EQ(Found({4000, 4100}, {0.1, 0.3, {}}).size(), 1001u);
}

TEST(ContourLevels, OfThirdsMeetTheirWholeNumbers) {
    const Levels levels = Found({0.9, 2.1}, {1.0 / 3, 1, {}});
    ASSERT_EQ(levels.size(), 4u);
    EXPECT_EQ(levels[0], (ContourLevel{1, true}));
    EXPECT_FALSE(levels[1].master);
    EXPECT_FALSE(levels[2].master);
    EXPECT_EQ(levels[3], (ContourLevel{2, true}));
}

TEST(ContourLevels, ARangeIncludesItsBounds) {
    const ElevationRange span = {150, 400};
    EXPECT_EQ(Found(span, {50, 100, ElevationRange{200, 300}}),
              (Levels{{200, true}, {250, false}, {300, true}}));
    EXPECT_EQ(Found(span, {50, 100, ElevationRange{200.01, 299.99}}), (Levels{{250, false}}));
    EXPECT_EQ(Found(span, {50, 100, ElevationRange{250, 250}}), (Levels{{250, false}}));
    // Beyond the span there is nothing; the span's own bounds are levels.
    EXPECT_EQ(Found(span, {50, 100, ElevationRange{-1000, 160}}), (Levels{{150, false}}));
    EXPECT_EQ(Found(span, {50, 100, ElevationRange{400, 9000}}), (Levels{{400, true}}));
    EXPECT_EQ(Found(span, {50, 100, ElevationRange{401, 9000}}), Levels{});
    EXPECT_EQ(Found(span, {50, 100, ElevationRange{300, 200}}), Levels{});
}

TEST(ContourLevels, OfTooFineAnIntervalAreEachOnce) {
    const Levels levels = Found({4000, 4000.0000001}, {1e-10, 1e-9, {}});
    EXPECT_EQ(levels.size(), 11u);
    for (size_t index = 1; index < levels.size(); ++index)
        EXPECT_LT(levels[index - 1].elevation, levels[index].elevation);
}

TEST(ContourLevels, ThereMayBeTenThousand) {
    EXPECT_EQ(Found({1, 10000}, {1, 100000, {}}).size(), 10000u);
    EXPECT_EQ(
        LevelsRefused({1, 10001}, {1, 100000, {}}),
        "there are more than 10000 contours from 1.00 to 10001.00 m: choose a larger interval");
    // Each of the two gives fewer, both together do not.
    EXPECT_EQ(Found({1, 6000}, {1, 1.5, {}}).size(), 8000u);
    EXPECT_NE(LevelsRefused({1, 9000}, {1, 1.5, {}}), "");
    EXPECT_NE(LevelsRefused({150, 400}, {2e-7, 1, {}}), "");
    EXPECT_NE(LevelsRefused({150, 400}, {1, 1e-300, {}}), "");
    EXPECT_NE(LevelsRefused({150, 400}, {std::numeric_limits<double>::denorm_min(), 1, {}}), "");
}

TEST(ContourLevels, AnIntervalThatIsNotAboveZeroIsRefused) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double wrong : {0.0, -1.0, nan}) {
        EXPECT_EQ(LevelsRefused({150, 400}, {wrong, 5, {}}),
                  "the intervals of contours have to be above 0");
        EXPECT_EQ(LevelsRefused({150, 400}, {5, wrong, {}}),
                  "the intervals of contours have to be above 0");
    }
}

TEST(Contours, AnErrorLeavesThemAsTheyWere) {
    const ElevationGrid plane = Surface(5, 5, 1, {0, 0}, [](double x, double) { return x; });
    std::vector<Contour> contours(3);
    EXPECT_NE(TraceContours(plane, {0, 1, {}}, contours), L"");
    EXPECT_EQ(contours.size(), 3u);
}

// Low and high nodes in turn: every cell is crossed by every level but the lowest.
TEST(Contours, ThatCrossTooManyCellsAreRefused) {
    std::vector<double> elevations;
    for (int row = 0; row < 72; ++row) {
        for (int column = 0; column < 72; ++column)
            elevations.push_back((row + column) % 2 == 0 ? 0 : 9999);
    }
    std::vector<Contour> contours;
    EXPECT_EQ(TraceContours(ElevationGrid(72, 1, {0, 0}, elevations), {1, 5, {}}, contours),
              L"the contours cross more than 50000000 cells: choose a larger interval");
}

// A plane that rises to the east by 1 m in a cell: straight lines from north to south, also where
// they run through nodes.
TEST(Contours, OfAPlaneAreStraightLines) {
    const ElevationGrid plane =
        Surface(21, 11, 10, {1000, 2000}, [](double x, double) { return (x - 1000) / 10; });
    const auto contours = Traced(plane, {2.5, 5, {}});
    // At the lowest elevation nothing is lower; at the highest the line is the border.
    ASSERT_EQ(contours.size(), 8u);
    for (size_t index = 0; index < contours.size(); ++index) {
        const Contour& line = contours[index];
        const double elevation = 2.5 * (static_cast<double>(index) + 1);
        EXPECT_EQ(line.level, (ContourLevel{elevation, index % 2 == 1}));
        EXPECT_FALSE(line.closed);
        EXPECT_FALSE(line.depression);
        ASSERT_EQ(line.points.size(), 11u);
        for (int row = 0; row < 11; ++row) {
            // Higher ground, the east, is to the left: it runs southwards.
            const MapPoint expected = {1000 + 10 * elevation, 2100.0 - 10 * row};
            EXPECT_EQ(line.points[row], expected);
        }
    }
}

TEST(Contours, OfATiltedPlaneLieInTheLevelsPlane) {
    const auto elevation = [](double x, double y) { return 0.3 * x - 0.7 * y + 12; };
    const ElevationGrid plane = Surface(40, 30, 2.5, {-20, 35}, elevation);
    const auto contours = Traced(plane, {1.3, 4, {}});
    ASSERT_GT(contours.size(), 50u);
    for (const Contour& line : contours) {
        EXPECT_FALSE(line.closed);
        for (const MapPoint& point : line.points)
            EXPECT_NEAR(elevation(point.x, point.y), line.level.elevation, 1e-12);
        for (const MapPoint& end : {line.points.front(), line.points.back()}) {
            EXPECT_TRUE(end.x == -20 || end.x == 77.5 || end.y == 35 || end.y == 107.5)
                << end.x << " " << end.y << " is within the terrain";
        }
    }
}

TEST(Contours, OfAConeAreCircles) {
    constexpr double cell = 10;
    constexpr MapPoint middle = {503.1, 497.7};
    const auto radius = [&](const MapPoint& point) {
        return std::hypot(point.x - middle.x, point.y - middle.y);
    };
    // A hill whose sides have the slope 1, and the same upside down.
    for (const double sign : {1.0, -1.0}) {
        const ElevationGrid cone = Surface(101, 101, cell, {0, 0}, [&](double x, double y) {
            return sign * (500 - radius({x, y}));
        });
        const auto contours = Traced(cone, {50, 100, ElevationRange{-470, 470}});
        // In the corners of the square it is below 0, but no ring fits there.
        std::map<double, int> rings;
        for (const Contour& ring : contours) {
            if (!ring.closed)
                continue;
            ++rings[ring.level.elevation];
            const double expected = 500 - sign * ring.level.elevation;
            // Along a side, the elevation curves by no more than 1 / radius, and a straight line
            // between its ends is then off by an eighth of that, times the square of the side.
            const double bound = cell * cell / (8 * (expected - cell));
            for (const MapPoint& point : ring.points)
                EXPECT_NEAR(radius(point), expected, bound);
            const double relative = cell * cell / (expected * expected) / 4;
            EXPECT_NEAR(Length(ring) / (2 * std::numbers::pi * expected), 1, relative);
            EXPECT_NEAR(sign * Area(ring) / (std::numbers::pi * expected * expected), 1,
                        3 * relative);
            EXPECT_EQ(ring.depression, sign < 0);
            EXPECT_EQ(ring.level.master, std::fmod(ring.level.elevation, 100) == 0);
        }
        EXPECT_EQ(rings.size(), 9u);
        for (const auto& [level, count] : rings) {
            EXPECT_GE(sign * level, 50);
            EXPECT_EQ(count, 1) << "at " << level;
        }
    }
}

// z = xy is linear along each side of a cell, so that every point is exact.
TEST(Contours, OfASaddleAreHyperbolas) {
    const auto elevation = [](double x, double y) { return x * y / 100; };
    const ElevationGrid saddle = Surface(20, 20, 10, {-95, -95}, elevation);
    const auto contours = Traced(saddle, {5, 10, ElevationRange{-80, 80}});
    std::map<double, int> branches;
    for (const Contour& branch : contours) {
        const double level = branch.level.elevation;
        ++branches[level];
        EXPECT_FALSE(branch.closed);
        for (const MapPoint& point : branch.points)
            EXPECT_NEAR(elevation(point.x, point.y), level, 1e-12);
        // A branch stays on its side of the saddle.
        for (const MapPoint& point : branch.points) {
            EXPECT_GE(point.x * branch.points.front().x, 0) << level;
            EXPECT_GE(point.y * branch.points.front().y, 0) << level;
        }
    }
    EXPECT_EQ(branches.size(), 33u);
    for (const auto& [level, count] : branches)
        EXPECT_EQ(count, 2) << "at " << level;
}

// The cell in the middle has corners of +-0.25 m; the mean is 0, the elevation of its middle.
TEST(Contours, TheMeanOfItsCornersDecidesHowASaddleTurns) {
    const ElevationGrid saddle =
        Surface(20, 20, 10, {-95, -95}, [](double x, double y) { return x * y / 100; });
    const auto quadrants = [&](double level) {
        std::vector<std::pair<bool, bool>> found; // east? north?
        for (const Contour& branch : At(saddle, level)) {
            double x = 0, y = 0;
            for (const MapPoint& point : branch.points) {
                x += point.x;
                y += point.y;
            }
            found.emplace_back(x > 0, y > 0);
        }
        std::ranges::sort(found);
        return found;
    };
    const std::vector<std::pair<bool, bool>> high = {{false, false}, {true, true}};
    const std::vector<std::pair<bool, bool>> low = {{false, true}, {true, false}};
    EXPECT_EQ(quadrants(0.1), high); // the pass is below: each hill has its own line
    EXPECT_EQ(quadrants(-0.1), low); // the pass is above: each valley has its own line
    EXPECT_EQ(quadrants(0.0), low);  // the pass counts as above

    // The level of the saddle itself runs along the axes, and round the middle within a cell.
    for (const Contour& branch : At(saddle, 0)) {
        for (const MapPoint& point : branch.points) {
            EXPECT_EQ(point.x * point.y, 0);
            EXPECT_LE(std::abs(point.x) + std::abs(point.y), 95);
        }
        EXPECT_EQ(branch.points.size(), 20u);
    }
}

// 0.2 + 7.6 + 3 + 9.2 are 20, but 19.999999999999996 in some orders.
TEST(Contours, ASaddleWhoseMeanIsTheLevelCountsAsHigherWhicheverWayItIsTurned) {
    const double ring[] = {0.2, 7.6, 3, 9.2}; // with the clock, from the north-west
    for (int turn = 0; turn < 4; ++turn) {
        const auto node = [&](int corner) { return ring[(corner + turn) % 4]; };
        const ElevationGrid saddle(2, 1, {0, 0}, {node(0), node(1), node(3), node(2)});
        const auto branches = At(saddle, 5);
        ASSERT_EQ(branches.size(), 2u);
        // The middle is higher: each branch goes round one of the lower corners.
        for (const Contour& branch : branches) {
            ASSERT_EQ(branch.points.size(), 2u);
            const MapPoint middle = {(branch.points[0].x + branch.points[1].x) / 2,
                                     (branch.points[0].y + branch.points[1].y) / 2};
            const int column = middle.x > 0.5, row = middle.y < 0.5;
            EXPECT_LT(saddle.Elevation(column, row), 5) << "turned " << turn;
        }
    }
}

TEST(Contours, NodesOnASaddlesAxesLeaveNoGap) {
    const ElevationGrid saddle =
        Surface(21, 21, 10, {-100, -100}, [](double x, double y) { return x * y / 100; });
    const auto branches = At(saddle, 0);
    ASSERT_EQ(branches.size(), 2u);
    for (const Contour& branch : branches) {
        // From the border along one axis, across one cell, and along the other to the border.
        EXPECT_EQ(branch.points.size(), 20u);
        EXPECT_NEAR(Length(branch), 2 * 90 + 10 * std::numbers::sqrt2, 1e-9);
    }
}

TEST(Contours, EndAtMissingElevations) {
    ElevationGrid plane = Surface(9, 9, 10, {0, 0}, [](double x, double y) {
        return x == 40 && y == 40 ? ElevationGrid::Missing : x / 10;
    });
    // The line at 35 m east meets the four cells without a corner; that at 25 m does not.
    const auto cut = At(plane, 3.5);
    ASSERT_EQ(cut.size(), 2u);
    EXPECT_EQ(cut[0].points, (Points{{35, 80}, {35, 70}, {35, 60}, {35, 50}}));
    EXPECT_EQ(cut[1].points, (Points{{35, 30}, {35, 20}, {35, 10}, {35, 0}}));
    EXPECT_EQ(At(plane, 2.5).size(), 1u);
    EXPECT_EQ(At(plane, 2.5)[0].points.size(), 9u);
}

TEST(Contours, ARingRoundMissingElevationsIsARing) {
    const auto elevation = [](double x, double y) {
        const double away = std::hypot(x - 50, y - 50);
        return away < 15 ? ElevationGrid::Missing : 100 - away;
    };
    const auto rings = At(Surface(11, 11, 10, {0, 0}, elevation), 65);
    ASSERT_EQ(rings.size(), 1u);
    EXPECT_TRUE(rings[0].closed);
    EXPECT_FALSE(rings[0].depression);
}

TEST(Contours, FlatGroundAtTheLevelLiesWithinItsContour) {
    const auto terrace = [](double x, double y) {
        return x >= 2 && x <= 4 && y >= 2 && y <= 4 ? 10.0 : 9.0;
    };
    const auto rings = At(Surface(7, 7, 1, {0, 0}, terrace), 10);
    ASSERT_EQ(rings.size(), 1u);
    EXPECT_TRUE(rings[0].closed);
    EXPECT_FALSE(rings[0].depression);
    // Along the nodes of the terrace, each of them once.
    EXPECT_EQ(rings[0].points.size(), 8u);
    EXPECT_EQ(Area(rings[0]), 4);
}

TEST(Contours, WhatEnclosesNothingIsLeftOut) {
    // A single node, a ridge of five, and a corner of the terrain, all at the very level.
    const auto heights = [](double x, double y) {
        const bool top = (x == 2 && y == 2) || (x >= 4 && x <= 8 && y == 5) || (x == 0 && y == 9);
        return top ? 10.0 : 9.0;
    };
    EXPECT_TRUE(At(Surface(10, 10, 0.7, {0.1, 0.3},
                           [&](double x, double y) {
                               return heights(std::round((x - 0.1) / 0.7),
                                              std::round((y - 0.3) / 0.7));
                           }),
                   10)
                    .empty());
    // A level below which nothing lies.
    EXPECT_TRUE(At(Surface(4, 4, 1, {0, 0}, [](double, double) { return 10; }), 10).empty());
    EXPECT_TRUE(At(Surface(4, 4, 1, {0, 0}, [](double x, double) { return 10 + x; }), 10).empty());
}

TEST(Contours, ARidgeAtTheLevelAcrossTheTerrainHasALineOnEitherSide) {
    const ElevationGrid roof =
        Surface(5, 3, 1, {0, 0}, [](double x, double) { return 10 - std::abs(x - 2); });
    const auto lines = At(roof, 10);
    ASSERT_EQ(lines.size(), 2u);
    Points southwards = {{2, 2}, {2, 1}, {2, 0}};
    EXPECT_NE(lines[0].points == southwards, lines[1].points == southwards);
    std::ranges::reverse(southwards);
    EXPECT_NE(lines[0].points == southwards, lines[1].points == southwards);
}

TEST(Contours, ATerrainWithoutCellsHasNone) {
    EXPECT_TRUE(At(ElevationGrid(), 5).empty());
    EXPECT_TRUE(At(ElevationGrid(1, 1, {0, 0}, {1, 5, 9}), 5).empty());
    EXPECT_TRUE(At(ElevationGrid(3, 1, {0, 0}, {1, 5, 9}), 5).empty());
}

// A terrain of random elevations is one of many saddles, lines and rings. Each side that a level
// crosses is a point of exactly one line, each line ends at the border or at a missing node, and
// has higher ground to its left.
TEST(Contours, OfRandomGroundCrossEverySideOnce) {
    std::mt19937 random(20081);
    for (int round = 0; round < 50; ++round) {
        const int columns = 2 + static_cast<int>(random() % 30);
        const int rows = 2 + static_cast<int>(random() % 30);
        std::vector<double> elevations;
        for (int node = 0; node < columns * rows; ++node) {
            const bool missing = random() % 20 == 0;
            elevations.push_back(missing ? ElevationGrid::Missing
                                         : static_cast<double>(random() % 1000) + 0.5);
        }
        const ElevationGrid grid(columns, 1, {0, 0}, elevations);
        const auto complete = [&](int column, int row) {
            if (column < 0 || row < 0 || column >= columns - 1 || row >= rows - 1)
                return false;
            return !std::isnan(grid.Elevation(column, row) + grid.Elevation(column + 1, row) +
                               grid.Elevation(column, row + 1) +
                               grid.Elevation(column + 1, row + 1));
        };

        const double level = 500;
        std::map<std::pair<double, double>, int> ends; // crossed sides, and how many cells meet
        const auto cross = [&](int column, int row, bool down) {
            const double first = grid.Elevation(column, row);
            const double second = grid.Elevation(column + !down, row + down);
            const int cells = complete(column, row) + complete(column - down, row - !down);
            if (cells == 0 || (first > level) == (second > level))
                return;
            const double part = (level - first) / (second - first);
            const MapPoint place = grid.At(column + (down ? 0 : part), row + (down ? part : 0));
            ends[{std::round(place.x * 1e9), std::round(place.y * 1e9)}] = cells;
        };
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                if (column < columns - 1)
                    cross(column, row, false);
                if (row < rows - 1)
                    cross(column, row, true);
            }
        }

        for (const Contour& line : At(grid, level)) {
            for (const MapPoint& point : line.points) {
                const auto side = ends.find({std::round(point.x * 1e9), std::round(point.y * 1e9)});
                ASSERT_NE(side, ends.end()) << point.x << " " << point.y;
                const bool end =
                    !line.closed && (point == line.points.front() || point == line.points.back());
                EXPECT_EQ(side->second, end ? 1 : 2);
                ends.erase(side); // a second point on it finds none
            }
            if (line.closed) {
                EXPECT_EQ(line.depression, Area(line) < 0);
            }
            // A step to the left of the way, along the side that the first point is on.
            const MapPoint& from = line.points[0];
            const MapPoint& to = line.points[1];
            const bool alongX = from.y == std::floor(from.y);
            const double left = alongX ? -(to.y - from.y) : to.x - from.x;
            const MapPoint high =
                alongX ? MapPoint{left > 0 ? std::ceil(from.x) : std::floor(from.x), from.y}
                       : MapPoint{from.x, left > 0 ? std::ceil(from.y) : std::floor(from.y)};
            if (left != 0) {
                EXPECT_GT(
                    grid.Elevation(static_cast<int>(high.x), rows - 1 - static_cast<int>(high.y)),
                    level);
            }
        }
        EXPECT_TRUE(ends.empty()) << ends.size() << " sides that no line crosses";
    }
}

TEST(Contours, OfTheSamplesTerrainAreWithinItsSpan) {
    ElevationGrid grid;
    ASSERT_EQ(ReadAscGridFile(HILLS_FILE, grid), L"");
    const auto contours = Traced(grid, {5, 25, {}});
    int rings = 0, depressions = 0;
    double level = 0;
    for (const Contour& contour : contours) {
        EXPECT_GE(contour.level.elevation, level) << "not in the order of their levels";
        level = contour.level.elevation;
        rings += contour.closed;
        depressions += contour.depression;
    }
    EXPECT_EQ(contours.front().level, (ContourLevel{165, false}));
    EXPECT_EQ(contours.back().level, (ContourLevel{395, false}));
    EXPECT_EQ(rings, 35);
    EXPECT_EQ(depressions, 4); // the hollow in the valley, and one more

    const auto within = Traced(grid, {5, 25, ElevationRange{300, 320}});
    EXPECT_EQ(within.front().level.elevation, 300);
    EXPECT_EQ(within.back().level.elevation, 320);
    for (const Contour& contour : within) {
        EXPECT_GE(contour.level.elevation, 300);
        EXPECT_LE(contour.level.elevation, 320);
    }
}
