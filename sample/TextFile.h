// What the sample's readers of text files have in common: a file is read whole or refused whole,
// with one line that says why. Most are files of lines, each with three fields between semicolons.
#pragma once

#include <afx.h>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What is wrong with a file, or with one of its lines; thrown by a reader, never beyond it.
struct Fault {
    std::wstring text;
};

/// The refusal of a file: "codes.txt: there is no such file".
CString Refusal(const CString& file, const std::wstring& what);

/// The refusal of one of its lines, from 1: "codes.txt(12): the style is missing".
CString Refusal(const CString& file, long long line, const std::wstring& what);

/// A file that is read from its front.
class InputFile {
public:
    /// Throws a Fault when there is no such file, Windows does not open it, or it is a device.
    explicit InputFile(const CString& name);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    /// Reads on, up to `size` bytes, below 2 GB; throws a Fault when Windows cannot.
    /// @return how many were read: fewer than `size` at the end of the file, then none.
    size_t Read(char* bytes, size_t size);

    /// How many bytes it has; throws a Fault when Windows does not know.
    long long Size() const;

private:
    void* m_Handle;
};

/// What the refusals call the file and its parts.
struct TextFormat {
    const wchar_t* file;   ///< "code table"
    const wchar_t* entry;  ///< "code"
    const wchar_t* fields; ///< "code;mnemonic;style"
};

/// One line that holds an entry.
struct TextLine {
    int number;                            ///< From 1.
    std::vector<std::wstring_view> fields; ///< Three, without the blanks around them.
};

/// Takes the entry of one line, or throws a Fault.
using TakeLine = std::function<void(const TextLine&)>;

/// Reads a text file: UTF-8, of at most 4 MB, in lines of at most 1,000 bytes. Blank lines and
/// those that begin with # are skipped.
///
/// @param file name of the file.
/// @return empty when every line was taken; else one line that names the file, the line where there
///         is one, and what is wrong with it: "codes.txt(12): the style is missing".
CString ReadTextFile(const CString& file, const TextFormat& format, const TakeLine& take);

/// The same out of the bytes of a file; `file` is its name for the messages.
CString ParseTextFile(const CString& file, std::string_view bytes, const TextFormat& format,
                      const TakeLine& take);

/// A field that holds a text of 1 to `longest` characters.
/// @param name what the field is called: "mnemonic".
CString ParseText(std::wstring_view field, const std::wstring& name, size_t longest);

/// A field that holds a whole number from 0 to `highest`.
int ParseNumber(std::wstring_view field, const std::wstring& name, int highest);

/// The lines of the entries so far, by what tells one entry from another.
class KnownEntries {
public:
    /// @param name what the entry is called: "code".
    explicit KnownEntries(std::wstring name) : m_Name(std::move(name)) {}

    /// Throws a Fault when there was this entry before.
    void Add(std::wstring_view entry, int line);

private:
    std::wstring m_Name;
    std::map<std::wstring, int, std::less<>> m_Lines;
};
