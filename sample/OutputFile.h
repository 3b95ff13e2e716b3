#pragma once

#include <afx.h>

#include <functional>
#include <string>
#include <string_view>

/// A text file that is written from its front, through a small buffer. It is written beside its
/// name, as <name>.part, or <name>.part2 and so on where that is somebody's file, and gets the name
/// when it is complete: what stood there before is never lost to half a file.
class OutputFile {
public:
    /// Throws a Fault when Windows does not make the file.
    explicit OutputFile(const CString& name);
    /// Removes what was written, unless it was completed.
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    /// Throws a Fault when the disk is full or the file cannot be written.
    OutputFile& operator<<(std::string_view text);

    /// Gives the file its name; throws a Fault as above.
    void Complete();

private:
    /// @return false when there is a file of that name already; throws a Fault as above.
    bool Open();
    void Flush();

    CString m_Name;
    CString m_Part;
    void* m_Handle;
    std::string m_Buffer;
};

/// Writes a file and completes it.
/// @param write writes the text; may throw a Fault.
/// @return empty when the file was written; else one line that names it and says what went wrong:
///         "hills.dxf: the disk is full". What stood there before is untouched then.
CString WriteTextFile(const CString& file, const std::function<void(OutputFile&)>& write);
