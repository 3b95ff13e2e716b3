#include "sample/terrain/SvgFile.h"

#include "kit/kit.h"

#include <regex>
#include <string>
#include <vector>

#include "Drawings.h"
#include "TemporaryFile.h"
#include "sample/terrain/AscGridFile.h"

namespace {

std::string Written(const ContourDrawing& drawing) {
    const TemporaryFile file("");
    EXPECT_EQ(WriteSvgFile(file.Name(), drawing), L"");
    return file.Bytes();
}

/// What a pattern finds, each time: its first group.
std::vector<std::string> All(const std::string& text, const char* pattern) {
    const std::regex expression(pattern);
    std::vector<std::string> found;
    for (std::sregex_iterator one(text.begin(), text.end(), expression), end; one != end; ++one)
        found.push_back((*one)[1]);
    return found;
}

std::string First(const std::string& text, const char* pattern) {
    const auto found = All(text, pattern);
    return found.empty() ? "" : found[0];
}

using Texts = std::vector<std::string>;

} // namespace

TEST(SvgFile, HasItsSizeOnPaperAndMetresWithin) {
    const std::string svg = Written(SmallDrawing());
    EXPECT_TRUE(svg.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg "));
    EXPECT_TRUE(svg.ends_with("</svg>\n"));
    EXPECT_EQ(First(svg, "viewBox=\"([^\"]*)\""), "0 0 100.000 80.000");
    EXPECT_EQ(First(svg, "<svg[^>]* width=\"([^\"]*)\""), "200.000mm");
    EXPECT_EQ(First(svg, "<svg[^>]* height=\"([^\"]*)\""), "160.000mm");
    EXPECT_EQ(First(svg, "<desc>([^<]*)"),
              "Metres east and south of 437200.000 4486380.000; scale 1:500");
}

TEST(SvgFile, LinesHaveTheirPointsAndElevation) {
    const std::string svg = Written(SmallDrawing());
    EXPECT_EQ(All(svg, "data-elevation=\"([^\"]*)\""),
              (Texts{"-2.500000", "12.300000", "0.000000"}));
    EXPECT_EQ(All(svg, " d=\"([^\"]*)\""),
              (Texts{"M0.000,80.000 50.125,69.750", "M30.000,70.000 40.000,60.000 40.000,70.000z",
                     "M10.000,70.000 20.000,70.000 20.000,60.000z"}));
}

TEST(SvgFile, MastersAreThickerAndLast) {
    const std::string svg = Written(SmallDrawing());
    EXPECT_EQ(All(svg, "<g id=\"([^\"]*)\""),
              (Texts{"contours", "depressions", "masters", "labels"}));
    EXPECT_EQ(All(svg, "<g id=\"[^\"]*\" fill=\"none\"[^>]* stroke-width=\"([^\"]*)\""),
              (Texts{"0.06500", "0.06500", "0.15000"})); // mm of paper at 1:500
    EXPECT_EQ(All(svg, "<title>([^<]*)</title>"),
              (Texts{"Hills", "CONTOURS", "DEPRESSIONS", "CONTOURS-MASTER", "CONTOURS-TEXT"}));
}

TEST(SvgFile, LabelsAreTurnedRoundTheirMiddle) {
    const std::string svg = Written(SmallDrawing());
    EXPECT_EQ(First(svg, "<text transform=\"([^\"]*)\""), "translate(15.000 70.000) rotate(30.00)");
    EXPECT_EQ(First(svg, "<text[^>]* y=\"([^\"]*)\""), "0.75000");
    EXPECT_EQ(First(svg, "<text[^>]*>([^<]*)</text>"), "0.0");
}

TEST(SvgFile, TextsAreEscaped) {
    ContourDrawing drawing = SmallDrawing();
    drawing.title = L"<a href=\"x\">&amp; \x00F1\x20AC\x07 '";
    drawing.layers.contours = L"]]>--><&\"";
    const std::string svg = Written(drawing);
    const auto titles = All(svg, "<title>([^<]*)</title>");
    ASSERT_EQ(titles.size(), 5u);
    EXPECT_EQ(titles[0], "&lt;a href=&quot;x&quot;&gt;&amp;amp; \xC3\xB1\xE2\x82\xAC  '");
    EXPECT_EQ(titles[1], "]]&gt;--&gt;&lt;&amp;&quot;");
}

TEST(SvgFile, HalfACharacterIsReplaced) {
    ContourDrawing drawing;
    drawing.title = CString(L"a\xD83D", 2) + L"b\xFFFE" + L"c";
    EXPECT_EQ(First(Written(drawing), "<title>([^<]*)</title>"), "a\xEF\xBF\xBD"
                                                                 "b c");
}

TEST(SvgFile, NumbersAreNeverInPowersOfTen) {
    ElevationGrid grid;
    ASSERT_EQ(ReadAscGridFile(HILLS_FILE, grid), L"");
    ContourDrawing drawing(grid);
    drawing.scale = 4'000'000'000;
    ASSERT_EQ(TraceContours(grid, {5, 25, {}}, drawing.contours), L"");
    const std::string svg = Written(drawing);
    EXPECT_TRUE(All(svg, "([0-9][eE][-+0-9])").empty());
    EXPECT_EQ(All(svg, "(data-elevation)").size(), drawing.contours.size());
    EXPECT_EQ(First(svg, "viewBox=\"([^\"]*)\""), "0 0 1190.000 890.000");
}

TEST(SvgFile, NoSizeIsZero) {
    const ElevationGrid smallest(2, 1e-6, {437200, 4486300}, {1, 2, 3, 4});
    const ElevationGrid row(3, 10000, {437200, 4486300}, {1, 2, 3});
    for (const ElevationGrid& grid : {smallest, row}) {
        for (const unsigned scale : {1u, 4'000'000'000u}) {
            ContourDrawing drawing(grid);
            drawing.scale = scale;
            drawing.contours = SmallDrawing().contours;
            drawing.labels = {{drawing.southWest, 0, 1, "1"}};
            drawing.labelHeight = drawing.Ground(0.00002);
            const std::string svg = Written(drawing);
            for (const char* pattern : {"viewBox=\"0 0 ([^ ]*)", "viewBox=\"0 0 [^ ]* ([^\"]*)",
                                        "<svg[^>]* width=\"([^\"]*)mm\"",
                                        "<svg[^>]* height=\"([^\"]*)mm\"", "font-size=\"([^\"]*)\"",
                                        "stroke-width=\"([^\"]*)\"", "<text[^>]* y=\"([^\"]*)\""}) {
                const Texts sizes = All(svg, pattern);
                EXPECT_FALSE(sizes.empty()) << pattern;
                for (const std::string& size : sizes)
                    EXPECT_NE(size.find_first_of("123456789"), size.npos) << pattern;
            }
        }
    }
}

TEST(SvgFile, ASmallPaperIsAsExactAsALargeOne) {
    ContourDrawing drawing = SmallDrawing();
    drawing.scale = 4'000'000'000;
    const std::string svg = Written(drawing);
    EXPECT_EQ(First(svg, "<svg[^>]* width=\"([^\"]*)\""), "0.00002500mm");
    EXPECT_EQ(First(svg, "<svg[^>]* height=\"([^\"]*)\""), "0.00002000mm");
}

TEST(SvgFile, AnEmptyDrawingIsAFile) {
    const std::string svg = Written(ContourDrawing());
    EXPECT_TRUE(svg.ends_with("</svg>\n"));
    EXPECT_EQ(First(svg, "viewBox=\"([^\"]*)\""), "0 0 0.001 0.001");
}

TEST(SvgFile, WhatCannotBeWrittenIsRefusedByName) {
    EXPECT_EQ(WriteSvgFile(L"Z:\\no such folder\\a.svg", SmallDrawing()),
              L"Z:\\no such folder\\a.svg: there is no such folder");
}
