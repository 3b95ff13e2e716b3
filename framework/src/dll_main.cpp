// The framework's own DLL.
#include "thread_slot.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
    // When a thread ends, the system frees the thread's objects first, and then tells each module.
    // What a module does then may make some objects anew. The framework is told last: it frees
    // them.
    if (reason == DLL_THREAD_DETACH)
        afx_internal::ThreadSlots::ReleaseThread();
    return TRUE;
}
