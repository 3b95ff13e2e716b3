// The framework's own DLL.
#include "thread_slot.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
    // The system ends the thread's objects before it tells the modules of the thread's end, and
    // what these do then makes some of them anew. The framework hears of it after them.
    if (reason == DLL_THREAD_DETACH)
        afx_internal::ThreadSlots::ReleaseThread();
    return TRUE;
}
