#include "sample/ClassificationFile.h"

#include "kit/kit.h"

#include <string>
#include <vector>

#include "Refusals.h"

using Cotana::CInfoClasificacion;

namespace {

constexpr Refusals Refused(ParseClassifications, L"cloud.txt");

} // namespace

TEST(ClassificationFile, KeepsTheOrderOfTheLinesAndTrimsTheFields) {
    std::vector<CInfoClasificacion> read;
    EXPECT_EQ(
        Refused("\xEF\xBB\xBF# cloud\r\n\r\n 9 ; 70 ;\tWater, río \r\n2;2147483647;Ground", read),
        "");
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].GetClasificacion(), 9);
    EXPECT_EQ(read[0].GetPuntos(), 70);
    EXPECT_EQ(read[0].Descripcion(false), L"Water, r\u00EDo");
    EXPECT_EQ(read[1].GetClasificacion(), 2);
    EXPECT_EQ(read[1].GetPuntos(), 2147483647);
}

TEST(ClassificationFile, TakesFieldsUpToTheirHighestAndLongest) {
    std::vector<CInfoClasificacion> read;
    EXPECT_EQ(Refused("0;0;" + std::string(200, 'd') + "\n255;1;x\n", read), "");
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].Descripcion(false).GetLength(), 200);
    EXPECT_EQ(read[1].GetClasificacion(), 255);
}

TEST(ClassificationFile, NamesTheLineAndWhatIsWrong) {
    const std::string longDescription(201, 'd'), longLine(1001, '#');
    const struct {
        std::string bytes;
        const char* refusal;
    } cases[] = {
        {"", "cloud.txt: there is no classification in the file"},
        {"# nothing but this\n", "cloud.txt: there is no classification in the file"},
        {"2;1\n", "cloud.txt(1): a line is number;points;description: three fields, not 2"},
        {"2;1;a;b\n", "cloud.txt(1): a line is number;points;description: three fields, not 4"},
        {"\n;1;Ground\n", "cloud.txt(2): the number is missing"},
        {"x;1;Ground\n", "cloud.txt(1): the number is not a whole number: x"},
        {"-2;1;Ground\n", "cloud.txt(1): the number is not a whole number: -2"},
        {"256;1;Ground\n", "cloud.txt(1): the number is above 255"},
        {"2; ;Ground\n", "cloud.txt(1): the count of points is missing"},
        {"2;1.5;Ground\n", "cloud.txt(1): the count of points is not a whole number: 1.5"},
        {"2;2147483648;Ground\n", "cloud.txt(1): the count of points is above 2147483647"},
        {"2;99999999999999999999;Ground\n",
         "cloud.txt(1): the count of points is above 2147483647"},
        {"2;1;\n", "cloud.txt(1): the description is missing"},
        {"2;1;" + longDescription + "\n",
         "cloud.txt(1): the description is longer than 200 characters"},
        {"2;1;Ground\n\n02;1;Ground too\n",
         "cloud.txt(3): the classification 2 is already in line 1"},
        {"2;1;Gr\xF3und\n", "cloud.txt(1): this is not UTF-8 text; save the file as UTF-8"},
        {"2;1;Gro\x07und\n", "cloud.txt(1): there is a control character in the line"},
        {longLine, "cloud.txt(1): the line is longer than 1000 bytes"},
        {std::string("2\0;", 3), "cloud.txt(1): this is not a text file"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Refused(one.bytes), one.refusal);
}

TEST(ClassificationFile, ARefusedFileLeavesTheListAsItWas) {
    std::vector<CInfoClasificacion> read = {CInfoClasificacion(7, 1, L"As it was")};
    EXPECT_NE(Refused("2;1;Ground\nwrong\n", read), "");
    ASSERT_EQ(read.size(), 1u);
    EXPECT_EQ(read[0].Descripcion(false), L"As it was");
}

TEST(ClassificationFile, AFileThatCannotBeReadIsRefusedByName) {
    std::vector<CInfoClasificacion> read;
    EXPECT_EQ(ReadClassificationFile(L"no such.txt", read), L"no such.txt: there is no such file");
    EXPECT_EQ(ReadClassificationFile(L"C:\\windows", read),
              L"C:\\windows: the file cannot be opened (Windows error 5)");
}

TEST(ClassificationFile, ReadsThePointCloudThatComesWithTheSample) {
    std::vector<CInfoClasificacion> read;
    EXPECT_EQ(ReadClassificationFile(CLASSIFICATIONS_FILE, read), L"");
    EXPECT_EQ(read.size(), 12u);
}
