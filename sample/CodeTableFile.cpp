#include "sample/CodeTableFile.h"

#include "sample/TextFile.h"

using Cotana::CDigiTab;
using Cotana::CElementoDigiTab;

namespace {

constexpr size_t LongestCode = 32;
constexpr size_t LongestMnemonic = 200;
constexpr int HighestStyle = 9999;

constexpr TextFormat CodeTable = {L"code table", L"code", L"code;mnemonic;style"};

CElementoDigiTab ParseEntry(const TextLine& line) {
    const CString code = ParseText(line.fields[0], L"code", LongestCode);
    if (code.FindOneOf(L" \t\"") != -1)
        throw Fault{L"there is a blank or a quote in the code: " + std::wstring(line.fields[0])};
    const CString mnemonic = ParseText(line.fields[1], L"mnemonic", LongestMnemonic);
    return CElementoDigiTab(code, mnemonic, ParseNumber(line.fields[2], L"style", HighestStyle));
}

/// Reads the table with one of the two readers below, which differ in where the bytes are.
template <class Reader>
CString Read(CDigiTab& table, const Reader& reader) {
    CDigiTab codes;
    KnownEntries known(L"code");
    const CString refusal = reader([&](const TextLine& line) {
        const CElementoDigiTab entry = ParseEntry(line);
        known.Add(line.fields[0], line.number);
        codes.Inserta(entry, true);
    });
    if (refusal.IsEmpty())
        table = codes;
    return refusal;
}

} // namespace

CString ReadCodeTableFile(const CString& file, CDigiTab& table) {
    return Read(table, [&](const TakeLine& take) { return ReadTextFile(file, CodeTable, take); });
}

CString ParseCodeTable(const CString& file, std::string_view bytes, CDigiTab& table) {
    return Read(table,
                [&](const TakeLine& take) { return ParseTextFile(file, bytes, CodeTable, take); });
}
