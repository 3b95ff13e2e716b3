#pragma once

#include <afx.h>

#include <windows.h>

/// A folder for drawings that exists while the test runs.
class DrawingsFolder {
public:
    DrawingsFolder() {
        wchar_t folder[MAX_PATH];
        GetTempPathW(MAX_PATH, folder);
        wchar_t name[MAX_PATH];
        GetTempFileNameW(folder, L"cur", 0, name);
        DeleteFileW(name);
        CreateDirectoryW(name, nullptr);
        m_Name = name;
    }
    ~DrawingsFolder() {
        DeleteFileW(File(L"contours.dxf"));
        DeleteFileW(File(L"contours.svg"));
        RemoveDirectoryW(m_Name);
    }
    DrawingsFolder(const DrawingsFolder&) = delete;
    DrawingsFolder& operator=(const DrawingsFolder&) = delete;

    const CString& Name() const { return m_Name; }
    CString File(const wchar_t* name) const { return m_Name + L"\\" + name; }

private:
    CString m_Name;
};
