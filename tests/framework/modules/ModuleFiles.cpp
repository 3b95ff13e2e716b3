#include "ModuleFiles.h"

#include <gtest/gtest.h>

#include <system_error>
#include <utility>

namespace fs = std::filesystem;

namespace {

fs::path ProgramFolder() {
    wchar_t path[MAX_PATH];
    ::GetModuleFileName(nullptr, path, MAX_PATH);
    return fs::path(path).parent_path();
}

} // namespace

LoadedModule::LoadedModule(const std::wstring& path)
    : m_module(::LoadLibrary(path.c_str())), m_error(m_module ? ERROR_SUCCESS : ::GetLastError()) {}

void LoadedModule::Free() {
    if (m_module)
        ::FreeLibrary(std::exchange(m_module, nullptr));
}

TemporaryFolder::TemporaryFolder() {
    // The number of a process that crashed, and left its folder behind, comes again.
    int attempt = 0;
    do {
        m_path = fs::temp_directory_path() /
                 (L"framework-test-" + std::to_wstring(::GetCurrentProcessId()) + L"-" +
                  std::to_wstring(attempt++));
    } while (!fs::create_directory(m_path));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code error;
    fs::remove_all(m_path, error);
    EXPECT_FALSE(error) << m_path << ": " << error.message();
}

std::wstring TemporaryFolder::Put(const std::wstring& module, const std::wstring& name) const {
    const fs::path copy = m_path / name;
    fs::create_directories(copy.parent_path());
    fs::copy_file(ProgramFolder() / module, copy);
    return copy.native();
}
