#include "sample/terrain/DxfFile.h"

#include "kit/kit.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "Drawings.h"
#include "TemporaryFile.h"
#include "sample/terrain/AscGridFile.h"

namespace {

/// Something in a DXF file: what it is called, and its groups.
struct Item {
    std::string name;
    std::multimap<int, std::string> groups;

    std::string Text(int code) const {
        EXPECT_EQ(groups.count(code), 1u) << name << " " << code;
        const auto group = groups.find(code);
        return group == groups.end() ? "" : group->second;
    }
    double Number(int code) const {
        const std::string text = Text(code);
        double number = 0;
        const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
        EXPECT_EQ(read.ptr, text.data() + text.size()) << text;
        return number;
    }
    MapPoint Point() const { return {Number(10), Number(20)}; }
};

/// Everything that begins with a group 0.
std::vector<Item> Items(const std::string& bytes) {
    std::vector<Item> items;
    std::istringstream lines(bytes);
    for (std::string code, value; std::getline(lines, code) && std::getline(lines, value);) {
        EXPECT_TRUE(code.ends_with('\r') && value.ends_with('\r')) << code;
        value.pop_back();
        if (std::stoi(code) == 0)
            items.push_back({value, {}});
        else if (items.empty())
            ADD_FAILURE() << "the file begins with " << code;
        else
            items.back().groups.emplace(std::stoi(code), value);
    }
    return items;
}

std::vector<Item> Written(const ContourDrawing& drawing) {
    const TemporaryFile file("");
    EXPECT_EQ(WriteDxfFile(file.Name(), drawing), L"");
    return Items(file.Bytes());
}

/// A polyline of the file, with its vertices.
struct Drawn {
    Item head;
    std::vector<Item> vertices;
};

std::vector<Drawn> Polylines(const std::vector<Item>& items) {
    std::vector<Drawn> polylines;
    bool open = false;
    for (const Item& item : items) {
        if (item.name == "POLYLINE") {
            EXPECT_FALSE(open);
            polylines.push_back({item, {}});
            open = true;
        } else if (item.name == "VERTEX") {
            EXPECT_TRUE(open);
            polylines.back().vertices.push_back(item);
        } else if (item.name == "SEQEND") {
            open = false;
        } else {
            EXPECT_FALSE(open) << item.name;
        }
    }
    EXPECT_FALSE(open);
    return polylines;
}

std::vector<std::pair<std::string, int>> Layers(const std::vector<Item>& items) {
    std::vector<std::pair<std::string, int>> layers;
    for (const Item& item : items) {
        if (item.name == "LAYER")
            layers.emplace_back(item.Text(2), static_cast<int>(item.Number(62)));
    }
    return layers;
}

} // namespace

TEST(DxfFile, IsOfReleaseTwelveWithItsSectionsInOrder) {
    const auto items = Written(SmallDrawing());
    std::vector<std::string> sections;
    std::string last;
    for (const Item& item : items) {
        if (item.name == "SECTION")
            sections.push_back(item.groups.lower_bound(2)->second);
        last = item.name;
    }
    EXPECT_EQ(sections, (std::vector<std::string>{"HEADER", "TABLES", "ENTITIES"}));
    EXPECT_EQ(last, "EOF");
    EXPECT_EQ(items.front().groups.find(1)->second, "AC1009");
}

TEST(DxfFile, OpensWithAViewOfAllTheTerrain) {
    const ContourDrawing drawing = SmallDrawing();
    for (const Item& item : Written(drawing)) {
        if (item.name != "VPORT")
            continue;
        EXPECT_EQ(item.Text(2), "*ACTIVE");
        EXPECT_EQ(item.Number(12), 437250);
        EXPECT_EQ(item.Number(22), 4486340);
        EXPECT_GT(item.Number(40), 80);
        EXPECT_GT(item.Number(40) * item.Number(41), 100);
        return;
    }
    FAIL() << "there is no view";
}

TEST(DxfFile, PolylinesHaveTheirElevationAndLayer) {
    const ContourDrawing drawing = SmallDrawing();
    const auto polylines = Polylines(Written(drawing));
    ASSERT_EQ(polylines.size(), 3u);
    const char* const layers[] = {"CONTOURS", "CONTOURS-MASTER", "DEPRESSIONS"};
    for (size_t index = 0; index < polylines.size(); ++index) {
        const Drawn& polyline = polylines[index];
        const Contour& contour = drawing.contours[index];
        EXPECT_EQ(polyline.head.Text(8), layers[index]);
        EXPECT_EQ(polyline.head.Text(66), "1");
        EXPECT_EQ(polyline.head.Number(30), contour.level.elevation);
        EXPECT_EQ(polyline.head.Number(70), contour.closed ? 1 : 0);
        ASSERT_EQ(polyline.vertices.size(), contour.points.size());
        for (size_t point = 0; point < contour.points.size(); ++point) {
            EXPECT_EQ(polyline.vertices[point].Point(), contour.points[point]);
            EXPECT_EQ(polyline.vertices[point].Number(30), contour.level.elevation);
            EXPECT_EQ(polyline.vertices[point].Text(8), layers[index]);
        }
    }
}

TEST(DxfFile, LabelsAreTextsRoundTheirMiddle) {
    for (const Item& item : Written(SmallDrawing())) {
        if (item.name != "TEXT")
            continue;
        EXPECT_EQ(item.Text(1), "0.0");
        EXPECT_EQ(item.Text(8), "CONTOURS-TEXT");
        EXPECT_EQ(item.Number(40), 1.5);
        EXPECT_EQ(item.Number(50), -30);
        EXPECT_EQ(item.Text(72) + item.Text(73), "12");
        EXPECT_EQ(item.Number(11), 437215);
        EXPECT_EQ(item.Number(21), 4486310);
        EXPECT_EQ(item.Number(31), 0);
        return;
    }
    FAIL() << "there is no text";
}

TEST(DxfFile, MastersAndDepressionsHaveColoursOfTheirOwn) {
    const auto layers = Layers(Written(SmallDrawing()));
    ASSERT_EQ(layers.size(), 6u);
    EXPECT_EQ(layers[0].first, "0");
    for (size_t one = 1; one < 5; ++one) {
        for (size_t other = 1; other < one; ++other)
            EXPECT_NE(layers[one].second, layers[other].second);
    }
}

TEST(DxfFile, LayersOfOneNameAreOne) {
    ContourDrawing drawing = SmallDrawing();
    drawing.layers = {L"Curvas", L"", L"curvas", L"CURVAS", L"T\x00E9xt"};
    const auto items = Written(drawing);
    std::vector<std::string> names;
    for (const auto& [name, colour] : Layers(items))
        names.push_back(name);
    EXPECT_EQ(names, (std::vector<std::string>{"0", "CURVAS", "T_XT"}));
    EXPECT_EQ(Polylines(items)[1].head.Text(8), "0");
    const auto table = std::ranges::find_if(
        items, [](const Item& item) { return item.name == "TABLE" && item.Text(2) == "LAYER"; });
    ASSERT_NE(table, items.end());
    EXPECT_EQ(table->Text(70), "3");
}

TEST(DxfFile, WhatSharesALayerHasAColourOfItsOwn) {
    ContourDrawing drawing = SmallDrawing();
    drawing.contours.push_back(drawing.contours[2]);
    drawing.contours[3].level.master = true;
    const auto colours = [&] {
        std::vector<std::string> found;
        for (const Item& item : Written(drawing)) {
            if (item.name == "POLYLINE" || item.name == "TEXT")
                found.push_back(item.groups.contains(62) ? item.Text(62) : "by layer");
        }
        return found;
    };
    EXPECT_EQ(colours(), std::vector<std::string>(5, "by layer"));
    std::vector<std::string> own;
    for (const auto& [name, colour] : Layers(Written(drawing)))
        own.push_back(std::to_string(colour));
    own[0] = "by layer"; // the first contour's: the layer has its colour
    own.erase(own.begin() + 1);
    drawing.layers = {L"C", L"C", L"c", L"C", L"C"};
    EXPECT_EQ(colours(), own);
}

TEST(DxfFile, ALabelsHeightIsNeverZero) {
    ContourDrawing drawing = SmallDrawing();
    drawing.decimals = 0; // of large cells
    drawing.labelHeight = 0.0002;
    const auto items = Written(drawing);
    const auto text = std::ranges::find(items, "TEXT", &Item::name);
    ASSERT_NE(text, items.end());
    EXPECT_EQ(text->Number(40), 0.0002);
}

TEST(DxfFile, HeaderHasTheBoundsOfAllThatIsDrawn) {
    const Item header = Written(SmallDrawing()).front();
    const auto bounds = [&](int code) {
        std::vector<std::string> values;
        for (auto [one, end] = header.groups.equal_range(code); one != end; ++one)
            values.push_back(one->second);
        return values;
    };
    using Texts = std::vector<std::string>;
    EXPECT_EQ(bounds(9), (Texts{"$ACADVER", "$EXTMIN", "$EXTMAX"}));
    EXPECT_EQ(bounds(10), (Texts{"437200.000", "437300.000"}));
    EXPECT_EQ(bounds(20), (Texts{"4486300.000", "4486380.000"}));
    EXPECT_EQ(bounds(30), (Texts{"-2.500000", "12.300000"}));
}

TEST(DxfFile, TablesHaveALineTypeForTheLayersAndATextStyle) {
    std::vector<std::string> tables;
    int layers = 0, types = 0, styles = 0;
    for (const Item& item : Written(SmallDrawing())) {
        if (item.name == "TABLE") {
            tables.push_back(item.Text(2));
        } else if (item.name == "LTYPE") {
            ++types;
            EXPECT_EQ(item.Text(2), "CONTINUOUS");
        } else if (item.name == "LAYER") {
            ++layers;
            EXPECT_EQ(item.Text(6), "CONTINUOUS");
        } else if (item.name == "STYLE") {
            ++styles;
            EXPECT_EQ(item.Text(2), "STANDARD");
            EXPECT_EQ(item.Number(40), 0) << "texts have heights of their own";
        }
    }
    EXPECT_EQ(tables, (std::vector<std::string>{"VPORT", "LTYPE", "LAYER", "STYLE"}));
    EXPECT_EQ(types, 1);
    EXPECT_EQ(layers, 6);
    EXPECT_EQ(styles, 1);
}

TEST(DxfFile, ALayersNameIsMadeWhatReleaseTwelveAllows) {
    const struct {
        const wchar_t* name;
        const char* cleaned;
    } cases[] = {
        {L"", "0"},
        {L"CONTOURS-5_m$", "CONTOURS-5_M$"},
        {L"curvas ma\x00F1"
         L"ana",
         "CURVAS_MA_ANA"},
        {L"<&\"'>/\\:;,?*=|", "______________"},
        {L"0\r\n0\r\nEOF", "0__0__EOF"},
        {L"\xD83D\xDE00", "__"},
        {L" ", "_"},
        {L"a234567890123456789012345678901234567890", "A234567890123456789012345678901"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(DxfLayerName(one.name), one.cleaned);
}

TEST(DxfFile, AnEmptyDrawingIsAFile) {
    const auto items = Written(ContourDrawing());
    EXPECT_TRUE(Polylines(items).empty());
    EXPECT_EQ(items.back().name, "EOF");
}

TEST(DxfFile, HoldsTheContoursOfTheSamplesTerrain) {
    ElevationGrid grid;
    ASSERT_EQ(ReadAscGridFile(HILLS_FILE, grid), L"");
    ContourDrawing drawing(grid);
    ASSERT_EQ(TraceContours(grid, {5, 25, {}}, drawing.contours), L"");
    ASSERT_EQ(LabelContours({}, drawing), L"");
    const auto polylines = Polylines(Written(drawing));
    ASSERT_EQ(polylines.size(), drawing.contours.size());
    for (size_t index = 0; index < polylines.size(); ++index) {
        const Contour& contour = drawing.contours[index];
        ASSERT_EQ(polylines[index].vertices.size(), contour.points.size());
        for (size_t point = 0; point < contour.points.size(); ++point) {
            const MapPoint read = polylines[index].vertices[point].Point();
            EXPECT_NEAR(read.x, contour.points[point].x, 0.0005 + 1e-9);
            EXPECT_NEAR(read.y, contour.points[point].y, 0.0005 + 1e-9);
        }
    }
}

TEST(DxfFile, WhatCannotBeWrittenIsRefusedByName) {
    EXPECT_EQ(WriteDxfFile(L"Z:\\no such folder\\a.dxf", SmallDrawing()),
              L"Z:\\no such folder\\a.dxf: there is no such folder");
    // A folder has that name.
    EXPECT_EQ(WriteDxfFile(L"C:\\windows", SmallDrawing()),
              L"C:\\windows: the file cannot be written (Windows error 5)");
    EXPECT_EQ(GetFileAttributesW(L"C:\\windows.part"), INVALID_FILE_ATTRIBUTES);
}

TEST(DxfFile, AFileInUseStaysAsItWas) {
    const TemporaryFile file("as it was");
    const HANDLE user =
        CreateFileW(file.Name(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(user, INVALID_HANDLE_VALUE);
    const CString refusal = WriteDxfFile(file.Name(), SmallDrawing());
    CloseHandle(user);
    EXPECT_NE(refusal.Find(L": the file cannot be written (Windows error "), -1);
    EXPECT_EQ(file.Bytes(), "as it was");
    EXPECT_EQ(GetFileAttributesW(CString(file.Name()) + L".part"), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(WriteDxfFile(file.Name(), SmallDrawing()), L"");
    EXPECT_NE(file.Bytes(), "as it was");
}

TEST(DxfFile, FilesThatBearTheNamesOfHalfAFileStayAsTheyWere) {
    const TemporaryFile file("");
    const CString part = CString(file.Name()) + L".part";
    ASSERT_TRUE(MoveFileW(TemporaryFile("the user's own").Name(), part));
    ASSERT_TRUE(CreateDirectoryW(part + L"2", nullptr));
    EXPECT_EQ(WriteDxfFile(file.Name(), SmallDrawing()), L"");
    EXPECT_EQ(BytesOf(part), "the user's own");
    EXPECT_NE(BytesOf(file.Name()), "");
    EXPECT_EQ(GetFileAttributesW(part + L"3"), INVALID_FILE_ATTRIBUTES);
    EXPECT_TRUE(RemoveDirectoryW(part + L"2"));
    EXPECT_TRUE(DeleteFileW(part));
}
