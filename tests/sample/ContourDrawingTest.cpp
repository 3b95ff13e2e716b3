#include "sample/terrain/ContourDrawing.h"

#include "kit/kit.h"

#include <cmath>
#include <limits>
#include <numbers>
#include <utility>
#include <vector>

#include "sample/terrain/Decimal.h"

namespace {

/// A drawing at 1:1000, so that 1 mm of paper is 1 m, of one line.
ContourDrawing DrawingOf(std::vector<MapPoint> points, bool closed = false) {
    ContourDrawing drawing;
    drawing.contours = {{{250, true}, closed, false, std::move(points)}};
    return drawing;
}

std::vector<ContourLabel> Labels(ContourDrawing drawing, const ContourLabelStyle& style) {
    EXPECT_EQ(LabelContours(style, drawing), L"");
    return drawing.labels;
}

} // namespace

TEST(ContourDrawing, HasTheBoundsOfItsTerrain) {
    const ContourDrawing drawing(ElevationGrid(3, 10, {100, 200}, {1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(drawing.southWest, (MapPoint{100, 200}));
    EXPECT_EQ(drawing.northEast, (MapPoint{120, 210}));
    EXPECT_EQ(drawing.decimals, 3);
}

TEST(ContourDrawing, CoordinatesAreAsFineAsTheCells) {
    const struct {
        double cell;
        int decimals;
    } cases[] = {{1000, 1}, {100, 2},        {25, 3},  {10, 3},    {1, 4},
                 {0.5, 5},  {1.0 / 3600, 8}, {1e6, 0}, {1e-20, 12}};
    for (const auto& one : cases)
        EXPECT_EQ(ContourDrawing(ElevationGrid(1, one.cell, {}, {1})).decimals, one.decimals);
}

TEST(ContourDrawing, ALengthOnPaperDependsOnTheScale) {
    ContourDrawing drawing;
    drawing.scale = 5000;
    EXPECT_EQ(drawing.Ground(2), 10);
}

TEST(ContourDrawing, EachKindOfContourHasItsLayer) {
    ContourDrawing drawing;
    drawing.layers = {L"a", L"b", L"c", L"d", L"e"};
    EXPECT_EQ(drawing.Layer({{5, false}, true, false, {}}), L"a");
    EXPECT_EQ(drawing.Layer({{5, true}, true, false, {}}), L"b");
    EXPECT_EQ(drawing.Layer({{5, false}, true, true, {}}), L"c");
    EXPECT_EQ(drawing.Layer({{5, true}, true, true, {}}), L"d");
}

TEST(ContourDrawing, LabelsStandEvenlyAlongALine) {
    const auto labels = Labels(DrawingOf({{0, 0}, {130, 0}, {250, 0}}), {2, 100, 1, true});
    ASSERT_EQ(labels.size(), 2u);
    EXPECT_NEAR(labels[0].middle.x, 62.5, 1e-9);
    EXPECT_NEAR(labels[1].middle.x, 187.5, 1e-9);
    for (const ContourLabel& label : labels) {
        EXPECT_EQ(label.text, "250.0");
        EXPECT_EQ(label.elevation, 250);
        EXPECT_EQ(label.middle.y, 0);
        EXPECT_EQ(label.angle, 0);
    }
}

TEST(ContourDrawing, AShorterLineThanTheSpacingHasOneLabelIfThereIsRoom) {
    // A text of three figures, 2 m high, is 4.8 m wide, and wants as much again.
    EXPECT_EQ(Labels(DrawingOf({{0, 0}, {9.7, 0}}), {2, 100, 0, true}).size(), 1u);
    EXPECT_EQ(Labels(DrawingOf({{0, 0}, {9.5, 0}}), {2, 100, 0, true}).size(), 0u);
}

TEST(ContourDrawing, AStepThatIsLostInTheLengthEndsNoLabel) {
    // Each leg is as long as the text; the second one is tried first.
    const auto labels =
        Labels(DrawingOf({{-6, -6}, {-6, 0}, {0, 0}, {0, 1e-20}}), {2.5, 100, 0, true});
    ASSERT_EQ(labels.size(), 1u);
    EXPECT_EQ(labels[0].middle, (MapPoint{-3, 0}));
    EXPECT_EQ(labels[0].angle, 0);
}

TEST(ContourDrawing, LabelsAreTurnedWithTheLineAndNeverUpsideDown) {
    for (int degrees = -180; degrees < 180; degrees += 15) {
        const double angle = degrees * std::numbers::pi / 180;
        const MapPoint end = {100 * std::cos(angle), 100 * std::sin(angle)};
        const auto labels = Labels(DrawingOf({{0, 0}, end}), {2, 1000, 0, true});
        ASSERT_EQ(labels.size(), 1u) << degrees;
        EXPECT_GT(labels[0].angle, -90 - 1e-9);
        EXPECT_LE(labels[0].angle, 90 + 1e-9);
        EXPECT_NEAR(std::remainder(labels[0].angle - degrees, 180), 0, 1e-9) << degrees;
    }
    EXPECT_EQ(Labels(DrawingOf({{0, 0}, {0, 100}}), {2, 1000, 0, true})[0].angle, 90);
    EXPECT_EQ(Labels(DrawingOf({{0, 100}, {0, 0}}), {2, 1000, 0, true})[0].angle, 90);
}

TEST(ContourDrawing, ALabelAvoidsABend) {
    // The middle of the line is its corner.
    const auto labels = Labels(DrawingOf({{0, 0}, {50, 0}, {50, 50}}), {2, 1000, 0, true});
    ASSERT_EQ(labels.size(), 1u);
    const double away = std::hypot(labels[0].middle.x - 50, labels[0].middle.y);
    EXPECT_GT(away, 2.4);
    EXPECT_LT(away, 15);
}

TEST(ContourDrawing, LabelsKeepAwayFromEachOther) {
    ContourDrawing drawing = DrawingOf({{0, 0}, {100, 0}});
    for (int line = 1; line < 10; ++line) {
        drawing.contours.push_back(drawing.contours[0]);
        for (MapPoint& point : drawing.contours.back().points)
            point.y = line;
    }
    const auto labels = Labels(drawing, {2, 100, 0, true});
    EXPECT_EQ(labels.size(), 10u);
    for (size_t one = 0; one < labels.size(); ++one) {
        for (size_t other = 0; other < one; ++other) {
            EXPECT_GE(std::hypot(labels[one].middle.x - labels[other].middle.x,
                                 labels[one].middle.y - labels[other].middle.y),
                      8);
        }
    }
}

TEST(ContourDrawing, LongLabelsKeepTheirLengthAway) {
    // Ten figures, 2 m high, are 16 m wide.
    ContourDrawing drawing = DrawingOf({{0, 0}, {200, 0}});
    drawing.contours.push_back(drawing.contours[0]);
    const auto labels = Labels(drawing, {2, 100, 6, true});
    EXPECT_EQ(labels.size(), 4u);
    for (size_t one = 0; one < labels.size(); ++one) {
        for (size_t other = 0; other < one; ++other)
            EXPECT_GE(std::abs(labels[one].middle.x - labels[other].middle.x), 18);
    }
}

TEST(ContourDrawing, LabelsOfAnySizeComeToAnEnd) {
    ContourDrawing drawing = DrawingOf({{437200, 4486300}, {438200, 4486300}});
    for (const double height : {1e-300, 1e-12, 1e300})
        Labels(drawing, {height, 1e300, 0, true});
    EXPECT_TRUE(Labels(drawing, {1e300, 1e-300, 0, true}).empty());
}

TEST(ContourDrawing, ARingIsLabelledAllRound) {
    std::vector<MapPoint> square = {{0, 0}, {100, 0}, {100, 100}, {0, 100}};
    EXPECT_EQ(Labels(DrawingOf(square, true), {2, 100, 0, true}).size(), 4u);
    EXPECT_EQ(Labels(DrawingOf(square, false), {2, 100, 0, true}).size(), 3u);
}

TEST(ContourDrawing, LabelsAreOfMastersOrOfAll) {
    ContourDrawing drawing = DrawingOf({{0, 0}, {100, 0}});
    drawing.contours.push_back({{245.5, false}, false, false, {{0, 50}, {100, 50}}});
    EXPECT_EQ(Labels(drawing, {2, 100, 0, true}).size(), 1u);
    const auto all = Labels(drawing, {2, 100, 2, false});
    ASSERT_EQ(all.size(), 2u);
    EXPECT_EQ(all[1].text, "245.50");
}

TEST(ContourDrawing, DecimalsOfLabelsAreBroughtIntoTheirRange) {
    ContourDrawing drawing = DrawingOf({{0, 0}, {100, 0}});
    EXPECT_EQ(Labels(drawing, {2, 100, -3, true})[0].text, "250");
    EXPECT_EQ(Labels(drawing, {2, 100, 100, true})[0].text, "250.000000");
}

TEST(ContourDrawing, LabelsHaveTheDecimalsThatTheirElevationNeeds) {
    const struct {
        double elevation;
        int decimals;
        const char* text;
    } cases[] = {{162.5, 0, "162.5"},         {162.5, 2, "162.50"}, {1.0 / 3, 0, "0.333333"},
                 {-0.25, 1, "-0.25"},         {0, 0, "0"},          {0, 2, "0.00"},
                 {1000, 0, "1000"},           {100.5, 1, "100.5"},  {-1e-9, 0, "0"},
                 {12.3456789, 2, "12.345679"}};
    for (const auto& one : cases) {
        ContourDrawing drawing = DrawingOf({{0, 0}, {100, 0}});
        drawing.contours[0].level.elevation = one.elevation;
        const auto labels = Labels(drawing, {2, 100, one.decimals, true});
        ASSERT_EQ(labels.size(), 1u) << one.text;
        EXPECT_EQ(labels[0].text, one.text);
    }
}

TEST(ContourDrawing, LabelsWithoutSizeOrWithoutEndAreRefused) {
    ContourDrawing drawing = DrawingOf({{0, 0}, {1000, 0}});
    drawing.labels = {{}};
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double wrong : {0.0, -1.0, nan}) {
        EXPECT_EQ(LabelContours({wrong, 10, 0, true}, drawing),
                  L"the height and the spacing of labels have to be above 0");
        EXPECT_EQ(LabelContours({1, wrong, 0, true}, drawing),
                  L"the height and the spacing of labels have to be above 0");
    }
    EXPECT_EQ(LabelContours({0.001, 0.001, 0, true}, drawing),
              L"there would be more than 100000 labels: choose a larger spacing or height");
    EXPECT_EQ(drawing.labels.size(), 1u) << "they were touched";
}

TEST(ContourDrawing, LabelsThatFindNoPlaceCountAsWell) {
    // Room for 50,000 labels, were it not bent everywhere: legs of half a metre, labels of one, two
    // metres from each other.
    std::vector<MapPoint> zigzag;
    for (int point = 0; point <= 4 * 50'000 + 1; ++point)
        zigzag.push_back({0.3 * point, point % 2 ? 0.4 : 0});
    ContourDrawing drawing = DrawingOf(std::move(zigzag));
    drawing.contours.push_back(drawing.contours[0]);
    const ContourLabelStyle style = {0.4, 2, 0, true};
    EXPECT_EQ(LabelContours(style, drawing), L"");
    EXPECT_TRUE(drawing.labels.empty());
    drawing.contours.push_back({{250, true}, false, false, {{0, 0}, {100, 0}}});
    EXPECT_EQ(LabelContours(style, drawing),
              L"there would be more than 100000 labels: choose a larger spacing or height");
}

TEST(ContourDrawing, NumbersAreWrittenAlikeInEveryCountry) {
    EXPECT_EQ(Decimal(-12.5, 2), "-12.50");
    EXPECT_EQ(Decimal(4486305, 3), "4486305.000");
    EXPECT_EQ(Decimal(1e14, 1), "100000000000000.0");
    EXPECT_EQ(Decimal(1e-9, 3), "0.000");
    EXPECT_EQ(Decimal(-0.0004, 3), "0.000");
    EXPECT_EQ(Decimal(-0.4, 0), "0");
    EXPECT_EQ(Decimal(-10, 0), "-10");
}

TEST(ContourDrawing, FineNumbersKeepFourDigits) {
    EXPECT_EQ(FineDecimal(200, 3), "200.000");
    EXPECT_EQ(FineDecimal(2, 3), "2.000");
    EXPECT_EQ(FineDecimal(0.2, 0), "0.2000");
    EXPECT_EQ(FineDecimal(-2.5e-10, 3), "-0.0000000002500");
    EXPECT_EQ(FineDecimal(0, 3), "0.000");
    EXPECT_EQ(FineDecimal(1e-300, 3), "0.00000000000000000");
}
