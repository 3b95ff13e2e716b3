#pragma once

#include <string>

namespace kit {

/// Gives the calling thread a desktop of its own: foreground, focus and input are not shared
/// with other processes. Must come before the thread's first window.
/// \return false when the system refuses; the thread then stays on the shared desktop.
bool useOwnDesktop();

/// Exit code of a process that a fault ended (access violation, illegal instruction, ...).
constexpr unsigned faultExitCode = 99;

/// A fault prints where it happened and ends the process with faultExitCode at once: no
/// dialog of the system opens, and no window procedure swallows it.
void endOnFault();

/// The value of an environment variable, or nothing.
std::wstring environment(const wchar_t* name);

} // namespace kit
