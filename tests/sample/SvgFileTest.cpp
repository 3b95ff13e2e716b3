#include "sample/terrain/SvgFile.h"

#include "kit/kit.h"

#include <sstream>
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

using Texts = std::vector<std::string>;

/// The values of an attribute of all elements of a name, in their order.
Texts Values(const std::string& svg, const std::string& element, const std::string& attribute) {
    const std::string before = " " + attribute + "=\"";
    Texts values;
    for (size_t at = 0; (at = svg.find("<" + element + " ", at)) != svg.npos; ++at) {
        const std::string tag = svg.substr(at, svg.find('>', at) - at);
        const size_t found = tag.find(before);
        if (found == tag.npos)
            continue;
        const size_t begin = found + before.size();
        values.push_back(tag.substr(begin, tag.find('"', begin) - begin));
    }
    return values;
}

std::string Value(const std::string& svg, const std::string& element,
                  const std::string& attribute) {
    const Texts values = Values(svg, element, attribute);
    return values.empty() ? "" : values[0];
}

/// The texts within all elements of a name.
Texts Contents(const std::string& svg, const std::string& element) {
    Texts contents;
    for (size_t at = 0; (at = svg.find("<" + element, at)) != svg.npos; ++at) {
        const size_t begin = svg.find('>', at) + 1;
        contents.push_back(svg.substr(begin, svg.find('<', begin) - begin));
    }
    return contents;
}

bool HasAPowerOfTen(const std::string& text) {
    constexpr std::string_view digits = "0123456789";
    for (size_t at = 1; (at = text.find_first_of("eE", at)) != text.npos; ++at) {
        const auto is = [&](size_t place, const std::string& what) {
            return place < text.size() && what.find(text[place]) != what.npos;
        };
        if (is(at - 1, std::string(digits)) && is(at + 1, std::string(digits) + "+-"))
            return true;
    }
    return false;
}

} // namespace

TEST(SvgFile, HasItsSizeOnPaperAndMetresWithin) {
    const std::string svg = Written(SmallDrawing());
    EXPECT_TRUE(svg.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg "));
    EXPECT_TRUE(svg.ends_with("</svg>\n"));
    EXPECT_EQ(Value(svg, "svg", "viewBox"), "0 0 100.000 80.000");
    EXPECT_EQ(Value(svg, "svg", "width"), "200.000mm");
    EXPECT_EQ(Value(svg, "svg", "height"), "160.000mm");
    EXPECT_EQ(Contents(svg, "desc"),
              Texts{"Metres east and south of 437200.000 4486380.000; scale 1:500"});
}

TEST(SvgFile, LinesHaveTheirPointsAndElevation) {
    const std::string svg = Written(SmallDrawing());
    EXPECT_EQ(Values(svg, "path", "data-elevation"), (Texts{"-2.500000", "12.300000", "0.000000"}));
    EXPECT_EQ(Values(svg, "path", "d"),
              (Texts{"M0.000,80.000 50.125,69.750", "M30.000,70.000 40.000,60.000 40.000,70.000z",
                     "M10.000,70.000 20.000,70.000 20.000,60.000z"}));
}

TEST(SvgFile, MastersAreThickerAndLast) {
    const std::string svg = Written(SmallDrawing());
    EXPECT_EQ(Values(svg, "g", "id"), (Texts{"contours", "depressions", "masters", "labels"}));
    EXPECT_EQ(Values(svg, "g", "stroke-width"), // mm of paper at 1:500
              (Texts{"0.06500", "0.06500", "0.15000", "0.75000"}));
    EXPECT_EQ(Contents(svg, "title"),
              (Texts{"Hills", "CONTOURS", "DEPRESSIONS", "CONTOURS-MASTER", "CONTOURS-TEXT"}));
}

TEST(SvgFile, LabelsAreTurnedRoundTheirMiddle) {
    const std::string svg = Written(SmallDrawing());
    EXPECT_EQ(Value(svg, "text", "transform"), "translate(15.000 70.000) rotate(30.00)");
    EXPECT_EQ(Value(svg, "text", "y"), "0.75000");
    EXPECT_EQ(Contents(svg, "text"), Texts{"0.0"});
}

TEST(SvgFile, TextsAreEscaped) {
    ContourDrawing drawing = SmallDrawing();
    drawing.title = L"<a href=\"x\">&amp; \x00F1\x20AC\x07 '";
    drawing.layers.contours = L"]]>--><&\"";
    const std::string svg = Written(drawing);
    const auto titles = Contents(svg, "title");
    ASSERT_EQ(titles.size(), 5u);
    EXPECT_EQ(titles[0], "&lt;a href=&quot;x&quot;&gt;&amp;amp; \xC3\xB1\xE2\x82\xAC  '");
    EXPECT_EQ(titles[1], "]]&gt;--&gt;&lt;&amp;&quot;");
}

TEST(SvgFile, HalfACharacterIsReplaced) {
    ContourDrawing drawing;
    drawing.title = CString(L"a\xD83D", 2) + L"b\xFFFE" + L"c";
    EXPECT_EQ(Contents(Written(drawing), "title").at(0), "a\xEF\xBF\xBD"
                                                         "b c");
}

TEST(SvgFile, NumbersAreNeverInPowersOfTen) {
    ElevationGrid grid;
    ASSERT_EQ(ReadAscGridFile(HILLS_FILE, grid), L"");
    ContourDrawing drawing(grid);
    drawing.scale = 4'000'000'000;
    ASSERT_EQ(TraceContours(grid, {5, 25, {}}, drawing.contours), L"");
    const std::string svg = Written(drawing);
    EXPECT_FALSE(HasAPowerOfTen(svg));
    EXPECT_EQ(Values(svg, "path", "data-elevation").size(), drawing.contours.size());
    EXPECT_EQ(Value(svg, "svg", "viewBox"), "0 0 1190.000 890.000");
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
            Texts sizes;
            std::istringstream box(Value(svg, "svg", "viewBox"));
            for (std::string size; box >> size;)
                sizes.push_back(size);
            ASSERT_EQ(sizes.size(), 4u);
            sizes.erase(sizes.begin(), sizes.begin() + 2); // where it begins: 0 0
            for (const auto& [element, attribute] :
                 std::vector<std::pair<const char*, const char*>>{{"svg", "width"},
                                                                  {"svg", "height"},
                                                                  {"g", "font-size"},
                                                                  {"g", "stroke-width"},
                                                                  {"text", "y"}}) {
                const Texts values = Values(svg, element, attribute);
                EXPECT_FALSE(values.empty()) << attribute;
                sizes.insert(sizes.end(), values.begin(), values.end());
            }
            for (const std::string& size : sizes)
                EXPECT_NE(size.find_first_of("123456789"), size.npos) << size;
        }
    }
}

TEST(SvgFile, ASmallPaperIsAsExactAsALargeOne) {
    ContourDrawing drawing = SmallDrawing();
    drawing.scale = 4'000'000'000;
    const std::string svg = Written(drawing);
    EXPECT_EQ(Value(svg, "svg", "width"), "0.00002500mm");
    EXPECT_EQ(Value(svg, "svg", "height"), "0.00002000mm");
}

TEST(SvgFile, AnEmptyDrawingIsAFile) {
    const std::string svg = Written(ContourDrawing());
    EXPECT_TRUE(svg.ends_with("</svg>\n"));
    EXPECT_EQ(Value(svg, "svg", "viewBox"), "0 0 0.001 0.001");
}

TEST(SvgFile, WhatCannotBeWrittenIsRefusedByName) {
    EXPECT_EQ(WriteSvgFile(L"Z:\\no such folder\\a.svg", SmallDrawing()),
              L"Z:\\no such folder\\a.svg: there is no such folder");
}
