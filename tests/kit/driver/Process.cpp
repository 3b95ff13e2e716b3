#include "kit/driver/Process.h"

#include "kit/picture/Text.h"

#include <windows.h>

#include <cstdio>

namespace kit {
namespace {

/// The file name of the module that holds an address, and the address relative to it, as
/// addr2line takes it with the module's own base added.
void printAddress(DWORD64 address) {
    HMODULE module = nullptr;
    wchar_t path[MAX_PATH] = L"?";
    if (GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                               GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                           reinterpret_cast<LPCWSTR>(address), &module))
        GetModuleFileNameW(module, path, MAX_PATH);
    const std::wstring_view file = path;
    std::fprintf(stderr, "  %s+0x%llx\n", utf8(file.substr(file.rfind(L'\\') + 1)).c_str(),
                 static_cast<unsigned long long>(address - reinterpret_cast<DWORD64>(module)));
}

void printStack(CONTEXT context) {
    constexpr int deepest = 40;
    for (int depth = 0; depth < deepest && context.Rip != 0; ++depth) {
        printAddress(context.Rip);
        DWORD64 base = 0;
        auto* const function = RtlLookupFunctionEntry(context.Rip, &base, nullptr);
        if (function == nullptr) {
            // A leaf function, or a jump into nowhere: the return address is on top.
            if (context.Rsp == 0 || depth > 0)
                return;
            context.Rip = *reinterpret_cast<DWORD64*>(context.Rsp);
            context.Rsp += sizeof(DWORD64);
            continue;
        }
        void* handler = nullptr;
        DWORD64 frame = 0;
        RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, function, &context, &handler, &frame,
                         nullptr);
    }
}

[[noreturn]] void endProcess(EXCEPTION_POINTERS& fault) {
    std::fprintf(stderr, "fault 0x%08lx in thread %lu at\n", fault.ExceptionRecord->ExceptionCode,
                 GetCurrentThreadId());
    printStack(*fault.ContextRecord);
    std::fflush(nullptr);
    TerminateProcess(GetCurrentProcess(), faultExitCode);
    __builtin_unreachable();
}

bool isFault(DWORD code) {
    switch (code) {
    case EXCEPTION_ACCESS_VIOLATION:
    case EXCEPTION_ILLEGAL_INSTRUCTION:
    case EXCEPTION_PRIV_INSTRUCTION:
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
    case EXCEPTION_IN_PAGE_ERROR:
    case EXCEPTION_STACK_OVERFLOW:
    case EXCEPTION_BREAKPOINT:
        return true;
    default:
        return false;
    }
}

/// The system's own libraries catch some of their faults, where they try out a pointer.
bool isOurCode(const void* address) {
    HMODULE module = nullptr;
    wchar_t path[MAX_PATH] = L"";
    wchar_t system[MAX_PATH] = L"";
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            static_cast<LPCWSTR>(address), &module))
        return true; // a jump into nowhere
    GetModuleFileNameW(module, path, MAX_PATH);
    const UINT length = GetWindowsDirectoryW(system, MAX_PATH);
    return CompareStringOrdinal(path, static_cast<int>(length), system, static_cast<int>(length),
                                TRUE) != CSTR_EQUAL;
}

LONG CALLBACK onFirstChance(EXCEPTION_POINTERS* fault) {
    if (isFault(fault->ExceptionRecord->ExceptionCode) &&
        isOurCode(fault->ExceptionRecord->ExceptionAddress))
        endProcess(*fault);
    return EXCEPTION_CONTINUE_SEARCH;
}

LONG WINAPI onUnhandled(EXCEPTION_POINTERS* fault) {
    endProcess(*fault);
}

} // namespace

bool useOwnDesktop() {
    const std::wstring name = L"kit" + std::to_wstring(GetCurrentProcessId());
    const HDESK desktop = CreateDesktopW(name.c_str(), nullptr, nullptr, 0, GENERIC_ALL, nullptr);
    return desktop != nullptr && SetThreadDesktop(desktop);
}

void endOnFault() {
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    AddVectoredExceptionHandler(1, onFirstChance);
    SetUnhandledExceptionFilter(onUnhandled);
}

std::wstring environment(const wchar_t* name) {
    std::wstring value(GetEnvironmentVariableW(name, nullptr, 0), L'\0');
    value.resize(GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size())));
    return value;
}

} // namespace kit
