#include "sample/OutputFile.h"

#include <utility>

#include <windows.h>

#include "sample/TextFile.h"

namespace {

constexpr size_t BufferSize = 64 * 1024;

[[noreturn]] void ThrowLastError() {
    const DWORD error = GetLastError();
    if (error == ERROR_DISK_FULL || error == ERROR_HANDLE_DISK_FULL)
        throw Fault{L"the disk is full"};
    if (error == ERROR_PATH_NOT_FOUND)
        throw Fault{L"there is no such folder"};
    throw Fault{L"the file cannot be written (Windows error " + std::to_wstring(error) + L")"};
}

} // namespace

OutputFile::OutputFile(const CString& name) : m_Name(name), m_Handle(INVALID_HANDLE_VALUE) {
    // First what may throw: of half an object nobody closes the file.
    m_Buffer.reserve(BufferSize);
    m_Part = name + L".part";
    for (int next = 2; !Open(); ++next)
        m_Part.Format(L"%s.part%d", name.GetString(), next);
}

bool OutputFile::Open() {
    m_Handle =
        CreateFileW(m_Part, GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (m_Handle != INVALID_HANDLE_VALUE)
        return true;
    const DWORD error = GetLastError();
    if (error != ERROR_FILE_EXISTS && error != ERROR_ALREADY_EXISTS)
        ThrowLastError();
    return false;
}

OutputFile::~OutputFile() {
    if (m_Handle == INVALID_HANDLE_VALUE)
        return;
    CloseHandle(m_Handle);
    DeleteFileW(m_Part);
}

OutputFile& OutputFile::operator<<(std::string_view text) {
    if (m_Buffer.size() + text.size() > BufferSize)
        Flush();
    m_Buffer += text;
    return *this;
}

void OutputFile::Flush() {
    const DWORD size = static_cast<DWORD>(m_Buffer.size());
    DWORD written = 0;
    if (!WriteFile(m_Handle, m_Buffer.data(), size, &written, nullptr))
        ThrowLastError();
    if (written != size)
        throw Fault{L"the disk is full"};
    m_Buffer.clear();
}

void OutputFile::Complete() {
    Flush();
    // On the disk before it replaces what stands there.
    if (!FlushFileBuffers(m_Handle))
        ThrowLastError();
    // An open file cannot be renamed. From here on the destructor has nothing to close.
    const BOOL closed = CloseHandle(std::exchange(m_Handle, INVALID_HANDLE_VALUE));
    if (closed && MoveFileExW(m_Part, m_Name, MOVEFILE_REPLACE_EXISTING))
        return;
    const DWORD error = GetLastError();
    DeleteFileW(m_Part);
    SetLastError(error);
    ThrowLastError();
}

CString WriteTextFile(const CString& file, const std::function<void(OutputFile&)>& write) {
    try {
        OutputFile output(file);
        write(output);
        output.Complete();
        return {};
    } catch (const Fault& fault) {
        return Refusal(file, fault.text);
    }
}
