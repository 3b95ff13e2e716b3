// What happens in the modules of a test, written down in the order in which it happens.
#pragma once

#include <windows.h>

/// Writes down what happens in the test program's diary, with the module state and the application
/// object that are current. The program exports NoteInDiary: also a module whose load fails can
/// tell what it did.
inline void Note(const char* what) {
    using Function = void (*)(const char*);
    static const auto note = reinterpret_cast<Function>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandle(nullptr), "NoteInDiary")));
    note(what);
}
