// Modules as files: loading them, and folders to put them into.
#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

/// A module, from LoadLibrary to FreeLibrary.
class LoadedModule {
public:
    explicit LoadedModule(const std::wstring& path);
    ~LoadedModule() { Free(); }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    HMODULE handle() const { return m_module; }
    /// The system's error number of a load that failed.
    DWORD error() const { return m_error; }
    void Free();

    /// Calls a function that the module exports by its plain name.
    template <class Result>
    Result Call(const char* function) const {
        return reinterpret_cast<Result (*)()>(
            reinterpret_cast<void*>(::GetProcAddress(m_module, function)))();
    }

private:
    HMODULE m_module;
    DWORD m_error;
};

/// A folder that goes, with all that is in it, at the end.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    /// Copies a module that stands beside the test program into the folder, under a name which
    /// may have folders before it. The result is the copy's path.
    std::wstring Put(const std::wstring& module, const std::wstring& name) const;

private:
    std::filesystem::path m_path;
};
