#include "kit/driver/Watchdog.h"

#include "kit/driver/Process.h"
#include "kit/picture/Picture.h"
#include "kit/picture/WindowTree.h"

#include <windows.h>

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <thread>
#include <utility>

namespace kit {
namespace {

using Clock = std::chrono::steady_clock;

std::chrono::seconds limit() {
    const std::wstring value = environment(L"CUADROS_WATCHDOG_SECONDS");
    return std::chrono::seconds(value.empty() ? 60 : std::wcstol(value.c_str(), nullptr, 10));
}

/// The watch over one thread.
struct Watch {
    std::mutex mutex;
    std::condition_variable changed;
    std::thread guard;
    int depth = 0; // nested watchdogs
    DWORD thread = 0;
    Clock::time_point latest;
    std::string waitingFor;
    bool ready = false;
    bool over = false;
};

Watch& watch() {
    static Watch instance;
    return instance;
}

[[noreturn]] void bark(DWORD thread, const std::string& waitingFor) {
    std::fprintf(stderr, "watchdog: nothing has moved for %lld s; waiting for %s\n%s",
                 static_cast<long long>(limit().count()), waitingFor.c_str(),
                 windowTrees(thread).c_str());
    std::fflush(stderr);

    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(thread, &info);
    std::wstring folder = environment(L"CUADROS_PICTURES");
    if (folder.empty())
        folder = environment(L"TEMP");
    const std::wstring path =
        folder + L"\\watchdog-" + std::to_wstring(GetCurrentProcessId()) + L".png";
    if (info.hwndActive != nullptr && savePicture(info.hwndActive, path))
        std::fprintf(stderr, "watchdog: picture of the active window: %s\n", utf8(path).c_str());
    std::fflush(nullptr);
    TerminateProcess(GetCurrentProcess(), Watchdog::exitCode);
    __builtin_unreachable();
}

void guardThread(std::chrono::seconds limit) {
    Watch& w = watch();
    // The windows of another desktop could not be seen from here.
    SetThreadDesktop(GetThreadDesktop(w.thread));
    std::unique_lock lock(w.mutex);
    // What a thread allocates at its first wait must not disturb who counts the heap later.
    w.changed.wait_for(lock, std::chrono::seconds(0));
    w.ready = true;
    w.changed.notify_all();
    while (!w.over) {
        const Clock::time_point end = w.latest + limit;
        if (w.changed.wait_until(lock, end) == std::cv_status::timeout && !w.over &&
            w.latest + limit <= Clock::now())
            bark(w.thread, w.waitingFor);
    }
}

} // namespace

Watchdog::Watchdog() {
    Watch& w = watch();
    if (w.depth++ > 0 || limit().count() == 0)
        return;
    w.thread = GetCurrentThreadId();
    w.latest = Clock::now();
    w.waitingFor = "the first step";
    w.over = false;
    w.ready = false;
    w.guard = std::thread(guardThread, limit());
    std::unique_lock lock(w.mutex);
    w.changed.wait(lock, [&w] { return w.ready; });
}

Watchdog::~Watchdog() {
    Watch& w = watch();
    if (--w.depth > 0 || !w.guard.joinable())
        return;
    {
        const std::scoped_lock lock(w.mutex);
        w.over = true;
    }
    w.changed.notify_all();
    w.guard.join();
}

void Watchdog::progress(std::string waitingFor) {
    Watch& w = watch();
    const std::scoped_lock lock(w.mutex);
    w.latest = Clock::now();
    w.waitingFor = std::move(waitingFor);
}

} // namespace kit
