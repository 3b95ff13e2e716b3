#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace kit {

/// A window and its descendants, one per line: class, control number, text, state, place.
/// May be called from any thread: a window that does not answer is named without its text.
std::string windowTree(HWND window);

/// The trees of all top-level windows of a thread.
std::string windowTrees(DWORD thread);

/// The top-level windows of a thread, without those that the system makes for itself.
std::vector<HWND> topLevelWindows(DWORD thread);

/// The class name of a window.
std::wstring classOf(HWND window);

/// The whole text of a window.
std::wstring textOf(HWND window);

} // namespace kit
