// The parts of the benchmark. Each adds its rows to the report.
#pragma once

#include <afxwin.h>

#include "bench/Desk.h"
#include "bench/Report.h"

namespace bench {

struct Bench {
    Desk& desk;
    Report& report;
    int cycles;        // of one measurement
    int growthCycles;  // of each dialog, between two counts
    bool sound = true; // false once the competitors disagree, or something has grown

    /// Says what is wrong, and that the run has failed.
    void fail(const std::string& what);
};

void measureCycles(Bench& bench);
void measureExchanges(Bench& bench);
void measureLists(Bench& bench);
void measureListDialogs(Bench& bench);
void measureImports(Bench& bench);
void measureRefusal(Bench& bench);
void measureStart(Bench& bench);
void measureSizes(Bench& bench);
void measureGrowth(Bench& bench);

/// Opens the dialog of that name and ends when it is painted: what a measured child process
/// does. Sets the event then.
void openOnce(Desk& desk, const std::wstring& dialog, HANDLE painted);

} // namespace bench
