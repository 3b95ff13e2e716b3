#include "sample/TextFile.h"

#include <windows.h>

namespace {

constexpr size_t LongestFile = 4 * 1024 * 1024;
constexpr size_t LongestLine = 1000;

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

/// The text of one line.
std::wstring LineText(std::string_view bytes) {
    if (bytes.find('\0') != bytes.npos)
        throw Fault{L"this is not a text file"};
    if (bytes.size() > LongestLine)
        throw Fault{L"the line is longer than " + std::to_wstring(LongestLine) + L" bytes"};
    return Decode(bytes);
}

/// The three fields of a line; none of a comment or a blank line.
std::vector<std::wstring_view> EntryFields(std::wstring_view text, const TextFormat& format) {
    const std::wstring_view line = Trimmed(text);
    if (line.empty() || line.front() == L'#')
        return {};
    for (const wchar_t character : line) {
        if (character < L' ' && character != L'\t')
            throw Fault{L"there is a control character in the line"};
    }
    auto fields = Fields(line);
    if (fields.size() != 3) {
        throw Fault{std::wstring(L"a line is ") + format.fields + L": three fields, not " +
                    std::to_wstring(fields.size())};
    }
    return fields;
}

/// The bytes of a file; throws a Fault when it cannot be read.
std::string Bytes(const CString& file, const TextFormat& format) {
    // One byte more than is allowed tells a file that is too long from one that just fits.
    std::string bytes(LongestFile + 1, '\0');
    bytes.resize(InputFile(file).Read(bytes.data(), bytes.size()));
    if (bytes.size() > LongestFile)
        throw Fault{std::wstring(L"the file is longer than 4 MB: this is not a ") + format.file};
    return bytes;
}

/// Takes the next line off the front, without its end.
std::string_view TakeFront(std::string_view& bytes) {
    const size_t end = bytes.find('\n');
    std::string_view line = bytes.substr(0, end);
    bytes.remove_prefix(end == bytes.npos ? bytes.size() : end + 1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

} // namespace

CString Refusal(const CString& file, const std::wstring& what) {
    return file + L": " + what.c_str();
}

CString Refusal(const CString& file, long long line, const std::wstring& what) {
    return Refusal(file + L"(" + std::to_wstring(line).c_str() + L")", what);
}

InputFile::InputFile(const CString& name)
    : m_Handle(CreateFileW(name, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                           FILE_ATTRIBUTE_NORMAL, nullptr)) {
    if (m_Handle == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND)
            throw Fault{L"there is no such file"};
        throw Fault{L"the file cannot be opened (Windows error " + std::to_wstring(error) + L")"};
    }
    // A serial line, for one, might have nothing to say for ever.
    if (GetFileType(m_Handle) != FILE_TYPE_DISK) {
        CloseHandle(m_Handle);
        throw Fault{L"this is a device, not a file"};
    }
}

InputFile::~InputFile() {
    CloseHandle(m_Handle);
}

size_t InputFile::Read(char* bytes, size_t size) {
    DWORD read = 0;
    if (!ReadFile(m_Handle, bytes, static_cast<DWORD>(size), &read, nullptr))
        throw Fault{L"the file cannot be read"};
    return read;
}

long long InputFile::Size() const {
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(m_Handle, &size))
        throw Fault{L"the file cannot be read"};
    return size.QuadPart;
}

CString ReadTextFile(const CString& file, const TextFormat& format, const TakeLine& take) {
    try {
        return ParseTextFile(file, Bytes(file, format), format, take);
    } catch (const Fault& fault) {
        return Refusal(file, fault.text);
    }
}

CString ParseTextFile(const CString& file, std::string_view bytes, const TextFormat& format,
                      const TakeLine& take) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (bytes.starts_with(mark))
        bytes.remove_prefix(mark.size());

    bool empty = true;
    for (int number = 1; !bytes.empty(); ++number) {
        try {
            const std::wstring text = LineText(TakeFront(bytes));
            auto fields = EntryFields(text, format);
            if (fields.empty())
                continue;
            take({number, std::move(fields)});
            empty = false;
        } catch (const Fault& fault) {
            return Refusal(file, number, fault.text);
        }
    }
    if (empty)
        return Refusal(file, std::wstring(L"there is no ") + format.entry + L" in the file");
    return {};
}

CString ParseText(std::wstring_view field, const std::wstring& name, size_t longest) {
    if (field.empty())
        throw Fault{L"the " + name + L" is missing"};
    if (field.size() > longest) {
        throw Fault{L"the " + name + L" is longer than " + std::to_wstring(longest) +
                    L" characters"};
    }
    return CString(field.data(), static_cast<int>(field.size()));
}

int ParseNumber(std::wstring_view field, const std::wstring& name, int highest) {
    if (field.empty())
        throw Fault{L"the " + name + L" is missing"};
    long long number = 0;
    for (const wchar_t digit : field) {
        if (digit < L'0' || digit > L'9')
            throw Fault{L"the " + name + L" is not a whole number: " + std::wstring(field)};
        number = number * 10 + (digit - L'0');
        if (number > highest)
            throw Fault{L"the " + name + L" is above " + std::to_wstring(highest)};
    }
    return static_cast<int>(number);
}

void KnownEntries::Add(std::wstring_view entry, int line) {
    const auto [known, isNew] = m_Lines.try_emplace(std::wstring(entry), line);
    if (!isNew) {
        throw Fault{L"the " + m_Name + L" " + known->first + L" is already in line " +
                    std::to_wstring(known->second)};
    }
}
