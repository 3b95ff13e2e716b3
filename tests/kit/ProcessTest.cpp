// What ends a test program from outside its tests: watched in a child process.
#include "kit/FailuresOf.h"
#include "kit/RawDialog.h"
#include "kit/kit.h"

#include <array>
#include <cstdlib>
#include <string>

using kit::Dialog;
using kit::Script;

namespace {

/// Runs this program again with other arguments, and keeps what it prints.
class Child {
public:
    explicit Child(const std::wstring& arguments) {
        std::array<wchar_t, MAX_PATH> program = {};
        GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
        std::wstring line = L"\"" + std::wstring(program.data()) + L"\" " + arguments;

        // A file, no pipe: processes of the system inherit it and outlive the child.
        const std::wstring path = kit::environment(L"TEMP") + L"\\kit-child" +
                                  std::to_wstring(GetCurrentProcessId()) + L".txt";
        SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
        const HANDLE file =
            CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE,
                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, &inherited,
                        CREATE_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        STARTUPINFOW startup = {};
        startup.cb = sizeof startup;
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdOutput = file;
        startup.hStdError = file;
        PROCESS_INFORMATION process = {};
        if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                           &startup, &process)) {
            WaitForSingleObject(process.hProcess, INFINITE);
            GetExitCodeProcess(process.hProcess, &exitCode);
            CloseHandle(process.hThread);
            CloseHandle(process.hProcess);
        }
        output.resize(GetFileSize(file, nullptr));
        SetFilePointer(file, 0, nullptr, FILE_BEGIN);
        DWORD read = 0;
        ReadFile(file, output.data(), static_cast<DWORD>(output.size()), &read, nullptr);
        output.resize(read);
        CloseHandle(file);
        std::erase(output, '\r');
    }

    DWORD exitCode = ~0U;
    std::string output;
};

/// Runs one of the cases below that only a child runs.
Child runCase(const std::wstring& name) {
    return Child(L"--gtest_also_run_disabled_tests --gtest_filter=Process.DISABLED_" + name);
}

/// Deletes the picture that the watchdog of a child has written; false when there is none.
bool deletePictureOf(const Child& child) {
    const std::string announcement = "watchdog: picture of the active window: ";
    const std::size_t begin = child.output.find(announcement);
    if (begin == std::string::npos)
        return false;
    const std::size_t path = begin + announcement.size();
    const std::size_t length = child.output.find('\n', path) - path;
    return DeleteFileW(kit::utf16(child.output.substr(path, length)).c_str());
}

} // namespace

TEST(Process, IsEndedByTheWatchdogWhenAStepNeverComes) {
    SetEnvironmentVariableW(L"CUADROS_WATCHDOG_SECONDS", L"1");
    const Child child = runCase(L"WaitsForAStepThatNeverComes");
    SetEnvironmentVariableW(L"CUADROS_WATCHDOG_SECONDS", nullptr);
    EXPECT_EQ(child.exitCode, kit::Watchdog::exitCode);
    EXPECT_TRUE(contains(child.output, "watchdog: nothing has moved for 1 s"));
    EXPECT_TRUE(contains(child.output, "waiting for a particular dialog (ProcessTest.cpp:"));
    EXPECT_TRUE(contains(child.output, "#32770 \"Quiet\"")) << "the window tree";
    EXPECT_TRUE(deletePictureOf(child));
}

TEST(Process, DISABLED_WaitsForAStepThatNeverComes) {
    const RawDialog dialog = RawDialog(L"Quiet").button(IDCANCEL, L"Cancel");
    Script script;
    script.patience(1'000'000);
    script.onDialog([](Dialog&) {});
    script.onDialog(kit::titled(L"Another"), [](Dialog&) {});
    script.run([&] { return dialog.open(); });
    FAIL() << "the watchdog should have ended this process";
}

TEST(Process, IsEndedByTheWatchdogWhenAHandlerNeverReturns) {
    SetEnvironmentVariableW(L"CUADROS_WATCHDOG_SECONDS", L"1");
    const Child child = runCase(L"PressesAButtonThatNeverReturns");
    SetEnvironmentVariableW(L"CUADROS_WATCHDOG_SECONDS", nullptr);
    EXPECT_EQ(child.exitCode, kit::Watchdog::exitCode);
    EXPECT_TRUE(contains(child.output, "waiting for the end of the step at ProcessTest.cpp:"));
    EXPECT_TRUE(contains(child.output, "#32770 \"Stuck\""));
    EXPECT_TRUE(deletePictureOf(child));
}

TEST(Process, DISABLED_PressesAButtonThatNeverReturns) {
    const RawDialog dialog = RawDialog(L"Stuck").button(101, L"Hang").onCommand([](HWND, int, int) {
        WaitForSingleObject(GetCurrentThread(), INFINITE);
    });
    Script script;
    script.onDialog([](Dialog& d) { d.press(101); });
    script.run([&] { return dialog.open(); });
    FAIL() << "the watchdog should have ended this process";
}

TEST(Process, EndsOnAFaultInAWindowProcedure) {
    const Child child = runCase(L"ReadsFromNowhere");
    EXPECT_EQ(child.exitCode, kit::faultExitCode);
    EXPECT_TRUE(contains(child.output, "fault 0xc0000005"));
    EXPECT_TRUE(contains(child.output, "kit_test.exe+0x"));
}

TEST(Process, DISABLED_ReadsFromNowhere) {
    const RawDialog dialog = RawDialog(L"Fault").onInit([](HWND) {
        volatile int* volatile nowhere = nullptr;
        *nowhere = 1;
    });
    Script script;
    script.run([&] { return dialog.open(); });
    FAIL() << "the fault should have ended this process";
}

TEST(Process, FailsATestThatLeavesAWindowOver) {
    const Child child = runCase(L"LeavesAWindowOver");
    EXPECT_EQ(child.exitCode, 1U);
    EXPECT_TRUE(contains(child.output, "A window is left over:\nStatic \"Left\""));
}

TEST(Process, DISABLED_LeavesAWindowOver) {
    EXPECT_NE(CreateWindowExW(0, L"Static", L"Left", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                              nullptr, nullptr),
              nullptr);
}

TEST(Process, FailsATestThatDamagesTheHeap) {
    const Child child = runCase(L"DamagesTheHeap");
    EXPECT_EQ(child.exitCode, 1U);
    EXPECT_TRUE(contains(child.output, "The heap is damaged"));
}

TEST(Process, DISABLED_DamagesTheHeap) {
    auto* volatile block = static_cast<char*>(std::malloc(24));
    ASSERT_NE(block, nullptr);
    block[24] = 'x';
}

TEST(Process, FailsATestWhoseScriptFails) {
    const Child child = runCase(L"MeetsAnUnexpectedMessage");
    EXPECT_EQ(child.exitCode, 1U);
    EXPECT_TRUE(contains(child.output, "An unexpected message box: \"C\" \"T\""));
}

TEST(Process, DISABLED_MeetsAnUnexpectedMessage) {
    Script script;
    EXPECT_EQ(script.run([] { return MessageBoxW(nullptr, L"T", L"C", MB_OK); }), IDOK);
}

TEST(Process, StopsAScriptAtAFatalFailureInAStep) {
    const Child child = runCase(L"FailsFatallyInAStep");
    EXPECT_EQ(child.exitCode, 1U);
    EXPECT_TRUE(contains(child.output, "the reason"));
    EXPECT_EQ(child.output.find("a later step"), std::string::npos) << child.output;
}

TEST(Process, DISABLED_FailsFatallyInAStep) {
    const RawDialog dialog = RawDialog(L"Fatal").button(IDCANCEL, L"Cancel");
    Script script;
    script.onDialog([](Dialog&) { FAIL() << "the reason"; });
    script.onDialog([](Dialog&) { ADD_FAILURE() << "a later step"; });
    script.run([&] { return dialog.open(); });
}

TEST(Process, RunsTheTestsOfOneSource) {
    const Child child(L"--kit-source=HandlesTest.cpp");
    EXPECT_EQ(child.exitCode, 0U);
    EXPECT_TRUE(contains(child.output, "OK ] Handles."));
    EXPECT_TRUE(contains(child.output, "OK ] HeapUse."));
    EXPECT_EQ(child.output.find("Script."), std::string::npos) << child.output;
}

TEST(Process, FailsWhenASourceHasNoTests) {
    const Child child(L"--kit-source=RawDialog.cpp");
    EXPECT_EQ(child.exitCode, 1U);
    EXPECT_TRUE(contains(child.output, "No test stands in RawDialog.cpp."));
}

TEST(Process, NamesTheTestsThatNoSourceRuns) {
    const Child child(L"--kit-sources=HandlesTest.cpp,ProcessTest.cpp");
    EXPECT_EQ(child.exitCode, 1U);
    EXPECT_TRUE(contains(child.output, "no entry names ScriptTest.cpp: Script."));
    EXPECT_EQ(child.output.find("Handles."), std::string::npos) << child.output;
}

TEST(Process, HasADesktopOfItsOwn) {
    std::array<wchar_t, 64> name = {};
    GetUserObjectInformationW(GetThreadDesktop(GetCurrentThreadId()), UOI_NAME, name.data(),
                              sizeof name, nullptr);
    EXPECT_EQ(name.data(), L"kit" + std::to_wstring(GetCurrentProcessId()));
}
