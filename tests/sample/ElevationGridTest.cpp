#include "sample/terrain/ElevationGrid.h"

#include "kit/kit.h"

#include <cmath>

TEST(ElevationGrid, LowestAndHighestPassOverMissingElevations) {
    constexpr double none = ElevationGrid::Missing;
    const ElevationGrid grid(3, 10, {0, 0}, {none, 7, -2, none, 3, none});
    EXPECT_EQ(grid.Lowest(), -2);
    EXPECT_EQ(grid.Highest(), 7);
}

TEST(ElevationGrid, WithoutElevationsThereIsNoLowestOrHighest) {
    constexpr double none = ElevationGrid::Missing;
    const ElevationGrid grid(2, 10, {0, 0}, {none, none});
    EXPECT_TRUE(std::isnan(grid.Lowest()));
    EXPECT_TRUE(std::isnan(grid.Highest()));
    EXPECT_TRUE(std::isnan(ElevationGrid().Lowest()));
}

TEST(ElevationGrid, RowsRunFromTheNorthToTheOrigin) {
    const ElevationGrid grid(2, 5, {100, 200}, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(grid.Rows(), 3);
    EXPECT_EQ(grid.At(0, 2), (MapPoint{100, 200}));
    EXPECT_EQ(grid.At(1, 0), (MapPoint{105, 210}));
    EXPECT_EQ(grid.At(0.5, 1.5), (MapPoint{102.5, 202.5}));
    EXPECT_EQ(grid.Elevation(0, 2), 5);
    EXPECT_EQ(grid.Elevation(1, 0), 2);
}
