// The file of a module, and the language module that stands beside it.
#pragma once

#include <windows.h>

#include <string>

namespace afx_internal {

/// The full path of a module's file, of whatever length; empty when it cannot be had.
std::wstring ModulePath(HMODULE module);

/// The file that a module is of, as the system's kernel names it: also that of a module which was
/// loaded for its resources only. Empty when it cannot be had.
std::wstring MappedFile(HMODULE module);

/// A file's path without its extension.
std::wstring WithoutExtension(const std::wstring& path);

/// Loads a module's language module, as AfxInitExtensionModule says; NULL when it has none.
HINSTANCE LoadLanguageModule(HMODULE module);

} // namespace afx_internal
