#include "sample/ClassificationFile.h"

#include <climits>

#include "sample/TextFile.h"

using Cotana::CInfoClasificacion;

namespace {

constexpr int HighestNumber = 255;
constexpr size_t LongestDescription = 200;

constexpr TextFormat Classifications = {L"list of classifications", L"classification",
                                        L"number;points;description"};

CInfoClasificacion ParseEntry(const TextLine& line) {
    const int number = ParseNumber(line.fields[0], L"number", HighestNumber);
    const int points = ParseNumber(line.fields[1], L"count of points", INT_MAX);
    return CInfoClasificacion(static_cast<BYTE>(number), points,
                              ParseText(line.fields[2], L"description", LongestDescription));
}

/// Reads the list with one of the two readers below, which differ in where the bytes are.
template <class Reader>
CString Read(std::vector<CInfoClasificacion>& classifications, const Reader& reader) {
    std::vector<CInfoClasificacion> entries;
    KnownEntries known(L"classification");
    const CString refusal = reader([&](const TextLine& line) {
        const CInfoClasificacion entry = ParseEntry(line);
        // By its value: 07 is 7.
        known.Add(std::to_wstring(entry.GetClasificacion()), line.number);
        entries.push_back(entry);
    });
    if (refusal.IsEmpty())
        classifications = entries;
    return refusal;
}

} // namespace

CString ReadClassificationFile(const CString& file,
                               std::vector<CInfoClasificacion>& classifications) {
    return Read(classifications,
                [&](const TakeLine& take) { return ReadTextFile(file, Classifications, take); });
}

CString ParseClassifications(const CString& file, std::string_view bytes,
                             std::vector<CInfoClasificacion>& classifications) {
    return Read(classifications, [&](const TakeLine& take) {
        return ParseTextFile(file, bytes, Classifications, take);
    });
}
