// From the start of a process to its first painted dialog.
#include "bench/ChildEvent.h"
#include "bench/OptionsDlg.h"
#include "bench/Sections.h"
#include "bench/Stopwatch.h"
#include "bench/Surveys.h"
#include "cuadros/triangulation/TriangulacionDlg.h"

namespace bench {

namespace {

constexpr DWORD longestStart = 60000; // milliseconds

std::wstring pathOf(const wchar_t* program) {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring folder = path;
    folder.resize(folder.find_last_of(L'\\') + 1);
    return folder + program;
}

/// @param arguments what the child is asked for; the event's handle is added.
Competitor startOf(Bench& bench, const std::wstring& program, const std::wstring& arguments) {
    return [&bench, program, arguments] {
        SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
        const HANDLE painted = CreateEventW(&inherited, TRUE, FALSE, nullptr);
        std::wstring line = L"\"" + program + L"\" " + arguments + L" " + handleText(painted);
        STARTUPINFOW start = {};
        start.cb = sizeof start;
        PROCESS_INFORMATION child = {};
        bool ready = false;
        const double time = timeOf([&] {
            ready = CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                   nullptr, &start, &child) &&
                    WaitForSingleObject(painted, longestStart) == WAIT_OBJECT_0;
        });
        if (!ready)
            bench.fail("a child process did not show its dialog");
        WaitForSingleObject(child.hProcess, longestStart);
        CloseHandle(child.hThread);
        CloseHandle(child.hProcess);
        CloseHandle(painted);
        return time;
    };
}

} // namespace

void openOnce(Desk& desk, const std::wstring& dialog, HANDLE painted) {
    desk.whenPainted = [painted](HWND shown) {
        SetEvent(painted);
        pressOk(shown);
    };
    if (dialog == L"triangulation") {
        Cotana::CDataTriangulacion data = surveyOf(60);
        Cotana::CTriangulacionDlg(data).DoModal();
    } else {
        Options<CString> options = someOptions<CString>();
        OptionsDlg(options).DoModal();
    }
}

void measureStart(Bench& bench) {
    const std::wstring self = pathOf(L"bench.exe");
    bench.report.add("Process start to first painted dialog: 40 plain controls",
                     compare(bench.cycles, startOf(bench, self, L"--child options"),
                             startOf(bench, pathOf(L"bench-raw.exe"), L"")),
                     1.5);
    bench.report.add("Process start to first painted dialog: triangulation, 60 codes",
                     measure(bench.cycles, startOf(bench, self, L"--child triangulation")));
}

} // namespace bench
