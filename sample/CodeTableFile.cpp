#include "sample/CodeTableFile.h"

#include <windows.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

using Cotana::CDigiTab;
using Cotana::CElementoDigiTab;

namespace {

constexpr size_t LongestFile = 4 * 1024 * 1024;
constexpr size_t LongestLine = 1000;
constexpr size_t LongestCode = 32;
constexpr size_t LongestMnemonic = 200;
constexpr int HighestStyle = 9999;

/// What is wrong with one line; thrown inside this file only.
struct Fault {
    std::wstring text;
};

std::wstring Decode(std::string_view utf8) {
    if (utf8.empty())
        return {};
    const int bytes = static_cast<int>(utf8.size());
    const int length =
        MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.data(), bytes, nullptr, 0);
    if (length == 0)
        throw Fault{L"this is not UTF-8 text; save the file as UTF-8"};
    std::wstring text(length, L'\0');
    MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.data(), bytes, text.data(), length);
    return text;
}

std::wstring_view Trimmed(std::wstring_view text) {
    constexpr std::wstring_view blanks = L" \t";
    const size_t first = text.find_first_not_of(blanks);
    if (first == text.npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::vector<std::wstring_view> Fields(std::wstring_view line) {
    std::vector<std::wstring_view> fields;
    for (size_t end; (end = line.find(L';')) != line.npos; line.remove_prefix(end + 1))
        fields.push_back(Trimmed(line.substr(0, end)));
    fields.push_back(Trimmed(line));
    return fields;
}

int ParseStyle(std::wstring_view text) {
    if (text.empty())
        throw Fault{L"the style is missing"};
    int style = 0;
    for (const wchar_t digit : text) {
        if (digit < L'0' || digit > L'9')
            throw Fault{L"the style is not a whole number: " + std::wstring(text)};
        style = style * 10 + (digit - L'0');
        if (style > HighestStyle)
            throw Fault{L"the style is above " + std::to_wstring(HighestStyle)};
    }
    return style;
}

CString ToCString(std::wstring_view text) {
    return CString(text.data(), static_cast<int>(text.size()));
}

/// The entry that a line holds; nothing for a comment or a blank line.
std::optional<CElementoDigiTab> ParseLine(std::string_view bytes) {
    if (bytes.find('\0') != bytes.npos)
        throw Fault{L"this is not a text file"};
    if (bytes.size() > LongestLine)
        throw Fault{L"the line is longer than " + std::to_wstring(LongestLine) + L" bytes"};
    const std::wstring text = Decode(bytes);
    const std::wstring_view line = Trimmed(text);
    if (line.empty() || line.front() == L'#')
        return std::nullopt;
    for (const wchar_t character : line) {
        if (character < L' ' && character != L'\t')
            throw Fault{L"there is a control character in the line"};
    }

    const auto fields = Fields(line);
    if (fields.size() != 3) {
        throw Fault{L"a line is code;mnemonic;style: three fields, not " +
                    std::to_wstring(fields.size())};
    }
    const std::wstring_view code = fields[0], mnemonic = fields[1];
    if (code.empty())
        throw Fault{L"the code is missing"};
    if (code.size() > LongestCode)
        throw Fault{L"the code is longer than " + std::to_wstring(LongestCode) + L" characters"};
    if (code.find_first_of(L" \t\"") != code.npos)
        throw Fault{L"there is a blank or a quote in the code: " + std::wstring(code)};
    if (mnemonic.empty())
        throw Fault{L"the mnemonic is missing"};
    if (mnemonic.size() > LongestMnemonic) {
        throw Fault{L"the mnemonic is longer than " + std::to_wstring(LongestMnemonic) +
                    L" characters"};
    }
    return CElementoDigiTab(ToCString(code), ToCString(mnemonic), ParseStyle(fields[2]));
}

CString Refusal(const CString& file, const std::wstring& what) {
    return file + L": " + what.c_str();
}

CString Refusal(const CString& file, int line, const std::wstring& what) {
    CString text;
    text.Format(L"%s(%d): %s", static_cast<LPCWSTR>(file), line, what.c_str());
    return text;
}

/// The bytes of a file; throws what Windows says when it cannot be read.
std::string Bytes(const CString& file) {
    const HANDLE handle = CreateFileW(file, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND)
            throw Fault{L"there is no such file"};
        throw Fault{L"the file cannot be opened (Windows error " + std::to_wstring(error) + L")"};
    }
    // One byte more than is allowed tells a file that is too long from one that just fits.
    std::string bytes(LongestFile + 1, '\0');
    DWORD read = 0;
    const BOOL done =
        ReadFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    CloseHandle(handle);
    if (!done)
        throw Fault{L"the file cannot be read"};
    if (read > LongestFile)
        throw Fault{L"the file is longer than 4 MB: this is not a code table"};
    bytes.resize(read);
    return bytes;
}

} // namespace

CString ReadCodeTableFile(const CString& file, CDigiTab& table) {
    try {
        return ParseCodeTable(file, Bytes(file), table);
    } catch (const Fault& fault) {
        return Refusal(file, fault.text);
    }
}

CString ParseCodeTable(const CString& file, std::string_view bytes, CDigiTab& table) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (bytes.starts_with(mark))
        bytes.remove_prefix(mark.size());

    CDigiTab codes;
    std::map<std::wstring, int> lineOfCode;
    for (int number = 1; !bytes.empty(); ++number) {
        const size_t end = bytes.find('\n');
        std::string_view line = bytes.substr(0, end);
        bytes.remove_prefix(end == bytes.npos ? bytes.size() : end + 1);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        try {
            const auto entry = ParseLine(line);
            if (!entry)
                continue;
            const auto [known, isNew] =
                lineOfCode.try_emplace(static_cast<LPCWSTR>(entry->GetCodigo()), number);
            if (!isNew) {
                throw Fault{L"the code " + known->first + L" is already in line " +
                            std::to_wstring(known->second)};
            }
            codes.Inserta(*entry, true);
        } catch (const Fault& fault) {
            return Refusal(file, number, fault.text);
        }
    }
    if (codes.Cantidad() == 0)
        return Refusal(file, L"there is no code in the file");
    table = codes;
    return {};
}
