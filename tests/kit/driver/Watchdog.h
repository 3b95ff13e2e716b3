#pragma once

#include <string>

namespace kit {

/// Ends the process when nothing moves any more: prints what was waited for and the windows
/// of the watched thread, and writes a picture of the active one.
///
/// The limit is 60 seconds without progress; the environment variable
/// CUADROS_WATCHDOG_SECONDS sets another, 0 switches it off (for a debugger).
class Watchdog {
public:
    /// Exit code of a process that the watchdog ended.
    static constexpr unsigned exitCode = 98;

    /// Watches the calling thread until destroyed; a nested one leaves the outer in charge.
    Watchdog();
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

    /// Something moved; from now on this is waited for.
    static void progress(std::string waitingFor);
};

} // namespace kit
