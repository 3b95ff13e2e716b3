// The entry point that mingw-w64 looks for in a program linked without -municode; the linker takes
// this file only then.
#include <afxwin.h>

#if defined(__MINGW32__)

extern "C" int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR commandLine, int showCommand);

namespace {

/// The command line behind the program's name.
LPWSTR Arguments() {
    LPWSTR rest = GetCommandLineW();
    const wchar_t end = *rest == L'"' ? L'"' : L' ';
    do {
        ++rest;
    } while (*rest != L'\0' && *rest != end);
    if (*rest == L'"')
        ++rest;
    while (*rest == L' ')
        ++rest;
    return rest;
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR, int showCommand) {
    return wWinMain(instance, previous, Arguments(), showCommand);
}

#endif
