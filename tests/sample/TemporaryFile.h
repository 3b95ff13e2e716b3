#pragma once

#include <string>
#include <string_view>

#include <windows.h>

/// What is in a file now.
inline std::string BytesOf(const wchar_t* name) {
    const HANDLE file =
        CreateFileW(name, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    std::string bytes(GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    CloseHandle(file);
    return bytes;
}

/// A file that exists while the test runs.
class TemporaryFile {
public:
    explicit TemporaryFile(std::string_view bytes) {
        wchar_t folder[MAX_PATH];
        GetTempPathW(MAX_PATH, folder);
        GetTempFileNameW(folder, L"cod", 0, name_);
        const HANDLE file =
            CreateFileW(name_, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        DWORD written = 0;
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        CloseHandle(file);
    }
    ~TemporaryFile() { DeleteFileW(name_); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const wchar_t* Name() const { return name_; }

    std::string Bytes() const { return BytesOf(name_); }

private:
    wchar_t name_[MAX_PATH] = {};
};
