#include "sample/CodeTableFile.h"

#include "kit/kit.h"

#include <string>

#include "Refusals.h"
#include "TemporaryFile.h"

using Cotana::CDigiTab;
using Cotana::CElementoDigiTab;

namespace {

constexpr Refusals Refused(ParseCodeTable, L"codes.txt");

} // namespace

TEST(CodeTableFile, KeepsTheOrderOfTheLinesAndTrimsTheFields) {
    CDigiTab table;
    EXPECT_EQ(Refused("# codes\n\n  TREE ; Tree, single\t; 61\nBM;Bench mark;0", table), "");
    ASSERT_EQ(table.Cantidad(), 2u);
    EXPECT_EQ(table[0].GetCodigo(), L"TREE");
    EXPECT_EQ(table[0].GetNemotecnico(), L"Tree, single");
    EXPECT_EQ(table[0].GetEstilo(), 61);
    EXPECT_EQ(table[1].GetCodigo(), L"BM");
    EXPECT_EQ(table[1].GetEstilo(), 0);
}

TEST(CodeTableFile, TakesAByteOrderMarkAndCarriageReturns) {
    CDigiTab table;
    EXPECT_EQ(Refused("\xEF\xBB\xBF"
                      "A;Uno;1\r\n\r\nB;Dos;2\r\n",
                      table),
              "");
    ASSERT_EQ(table.Cantidad(), 2u);
    EXPECT_EQ(table[0].GetCodigo(), L"A");
    EXPECT_EQ(table[1].GetNemotecnico(), L"Dos");
}

TEST(CodeTableFile, ReadsTextBeyondAscii) {
    CDigiTab table;
    EXPECT_EQ(Refused("Ñ;Línea de cumbre \xE2\x88\x86;9999\n", table), "");
    ASSERT_EQ(table.Cantidad(), 1u);
    EXPECT_EQ(table[0].GetCodigo(), L"\u00D1");
    EXPECT_EQ(table[0].GetNemotecnico(), L"L\u00EDnea de cumbre \u2206");
}

TEST(CodeTableFile, TellsUpperFromLowerCase) {
    CDigiTab table;
    EXPECT_EQ(Refused("a;Small;1\nA;Large;1\n", table), "");
    EXPECT_EQ(table.Cantidad(), 2u);
}

TEST(CodeTableFile, NamesTheLineAndWhatIsWrong) {
    const std::string longCode(33, 'x'), longMnemonic(201, 'm'), longLine(1001, '#');
    const struct {
        std::string bytes;
        const char* refusal;
    } cases[] = {
        {"", "codes.txt: there is no code in the file"},
        {"\xEF\xBB\xBF", "codes.txt: there is no code in the file"},
        {"# nothing but this\n\n", "codes.txt: there is no code in the file"},
        {"A;B;1\nBRK\n", "codes.txt(2): a line is code;mnemonic;style: three fields, not 1"},
        {"A;B\n", "codes.txt(1): a line is code;mnemonic;style: three fields, not 2"},
        {"A;B;1;\n", "codes.txt(1): a line is code;mnemonic;style: three fields, not 4"},
        {"\n;B;1\n", "codes.txt(2): the code is missing"},
        {"A; ;1\n", "codes.txt(1): the mnemonic is missing"},
        {"A;B;\n", "codes.txt(1): the style is missing"},
        {"A B;C;1\n", "codes.txt(1): there is a blank or a quote in the code: A B"},
        {"A\"B;C;1\n", "codes.txt(1): there is a blank or a quote in the code: A\"B"},
        {"A;B;2.5\n", "codes.txt(1): the style is not a whole number: 2.5"},
        {"A;B;-1\n", "codes.txt(1): the style is not a whole number: -1"},
        {"A;B;10000\n", "codes.txt(1): the style is above 9999"},
        {"A;B;99999999999999999999\n", "codes.txt(1): the style is above 9999"},
        {longCode + ";B;1\n", "codes.txt(1): the code is longer than 32 characters"},
        {"A;" + longMnemonic + ";1\n", "codes.txt(1): the mnemonic is longer than 200 characters"},
        {longLine, "codes.txt(1): the line is longer than 1000 bytes"},
        {"A;B;1\n\nC;D;2\nA;E;3\n", "codes.txt(4): the code A is already in line 1"},
        {"A;B;1\nL\xEDnea;B;1\n", "codes.txt(2): this is not UTF-8 text; save the file as UTF-8"},
        {"A;B\x07;1\n", "codes.txt(1): there is a control character in the line"},
        {std::string("\xFF\xFE"
                     "A\0;\0",
                     6),
         "codes.txt(1): this is not a text file"},
        {std::string("MZ\x90\0\3", 5), "codes.txt(1): this is not a text file"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Refused(one.bytes), one.refusal);
}

TEST(CodeTableFile, TakesFieldsUpToTheirLongest) {
    CDigiTab table;
    const std::string line = std::string(32, 'x') + ";" + std::string(200, 'm') + ";9999";
    EXPECT_EQ(Refused(line, table), "");
    ASSERT_EQ(table.Cantidad(), 1u);
    EXPECT_EQ(table[0].GetCodigo().GetLength(), 32);
    EXPECT_EQ(table[0].GetNemotecnico().GetLength(), 200);
}

TEST(CodeTableFile, ARefusedFileLeavesTheTableAsItWas) {
    CDigiTab table;
    table.Inserta(CElementoDigiTab(L"OLD", L"As it was", 7), true);
    EXPECT_NE(Refused("A;B;1\nwrong\n", table), "");
    ASSERT_EQ(table.Cantidad(), 1u);
    EXPECT_EQ(table[0].GetCodigo(), L"OLD");
}

TEST(CodeTableFile, AFileThatCannotBeReadIsRefusedByName) {
    CDigiTab table;
    EXPECT_EQ(ReadCodeTableFile(L"no such.txt", table), L"no such.txt: there is no such file");
    EXPECT_EQ(ReadCodeTableFile(L"C:\\windows", table),
              L"C:\\windows: the file cannot be opened (Windows error 5)");
}

TEST(CodeTableFile, ReadsAFile) {
    const TemporaryFile file("A;B;1\nC;D\n");
    CDigiTab table;
    EXPECT_EQ(ReadCodeTableFile(file.Name(), table),
              CString(file.Name()) + L"(2): a line is code;mnemonic;style: three fields, not 2");
}

TEST(CodeTableFile, RefusesAHugeFile) {
    const TemporaryFile file(std::string(4 * 1024 * 1024 + 1, '\n'));
    CDigiTab table;
    EXPECT_EQ(ReadCodeTableFile(file.Name(), table),
              CString(file.Name()) + L": the file is longer than 4 MB: this is not a code table");
}

TEST(CodeTableFile, ReadsTheSurveyCodesThatComeWithTheSample) {
    CDigiTab table;
    EXPECT_EQ(ReadCodeTableFile(SURVEY_CODES_FILE, table), L"");
    EXPECT_EQ(table.Cantidad(), 63u);
}
