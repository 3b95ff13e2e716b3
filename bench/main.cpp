// Measures the dialogs against the same work by hand over the Windows API.
//
//   bench [--quick] [--markdown] [SECTION...]
//
// SECTION     growth, cycles, exchanges, lists, list-dialogs, imports, refusal, start, sizes:
//             these only
// --quick     few cycles: shows that it runs, its times mean little
// --markdown  prints the tables as docs/performance.md has them
//
// Ends with 0 when both competitors did the same and nothing has grown, whatever the times.
#include <afxwin.h>

#include <algorithm>
#include <cstdio>
#include <span>
#include <string_view>
#include <vector>

#include "bench/ChildEvent.h"
#include "bench/Sections.h"
#include "kit/driver/Process.h"

namespace {

CWinApp application(L"bench");

/// The host's main window as the framework knows it; somebody else owns it.
class MainWindow : public CWnd {
public:
    explicit MainWindow(HWND window) {
        Attach(window);
        application.m_pMainWnd = this;
    }
    ~MainWindow() override {
        application.m_pMainWnd = nullptr;
        Detach();
    }
};

void stayOnOneProcessor() {
    DWORD_PTR own = 0;
    DWORD_PTR all = 0;
    GetProcessAffinityMask(GetCurrentProcess(), &own, &all);
    DWORD_PTR last = 1;
    while (last <= own / 2)
        last *= 2;
    SetThreadAffinityMask(GetCurrentThread(), last);
}

constexpr struct {
    std::wstring_view name;
    void (*measure)(bench::Bench&);
} sectionsInOrder[] = {
    {L"growth", bench::measureGrowth},
    {L"cycles", bench::measureCycles},
    {L"exchanges", bench::measureExchanges},
    {L"lists", bench::measureLists},
    {L"list-dialogs", bench::measureListDialogs},
    {L"imports", bench::measureImports},
    {L"refusal", bench::measureRefusal},
    {L"start", bench::measureStart},
    {L"sizes", bench::measureSizes},
};

} // namespace

namespace bench {

void Bench::fail(const std::string& what) {
    std::fprintf(stderr, "bench: %s\n", what.c_str());
    sound = false;
}

} // namespace bench

int wmain(int argc, wchar_t** argv) {
    kit::endOnFault();
    // A child is on its parent's desktop, as its competitor is: a new one costs a process more.
    const bool child = argc == 4 && std::wstring_view(argv[1]) == L"--child";
    if (!child) {
        kit::useOwnDesktop();
        stayOnOneProcessor();
    }
    wchar_t noCommandLine[] = L"";
    AfxWinInit(GetModuleHandleW(nullptr), nullptr, noCommandLine, SW_SHOWNORMAL);

    bench::Desk desk;
    const MainWindow mainWindow(desk.window());
    if (child) {
        bench::openOnce(desk, argv[2], bench::handleOf(argv[3]));
        return 0;
    }

    bool quick = false;
    bool markdown = false;
    std::vector<std::wstring_view> sections;
    for (const std::wstring_view argument : std::span(argv, argc).subspan(1)) {
        if (argument == L"--quick")
            quick = true;
        else if (argument == L"--markdown")
            markdown = true;
        else
            sections.push_back(argument);
    }
    bench::Report report;
    bench::Bench bench = {desk, report, quick ? 4 : 200, quick ? 20 : 1000};
    for (const auto& [name, measure] : sectionsInOrder)
        if (sections.empty() || std::ranges::find(sections, name) != sections.end())
            measure(bench);
    report.print(markdown);
    return bench.sound ? 0 : 1;
}
