#include "kit/kit.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <set>
#include <sstream>
#include <string>
#include <string_view>

namespace kit {
namespace {

/// After each test: no window is left over, and the heap is whole.
class AfterEachTest : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& test) override {
        before_ = topLevelWindows(GetCurrentThreadId());
        Watchdog::progress(std::string("the test ") + test.test_suite_name() + "." + test.name());
    }

    void OnTestEnd(const testing::TestInfo&) override {
        for (const HWND window : topLevelWindows(GetCurrentThreadId()))
            if (std::ranges::find(before_, window) == before_.end()) {
                ADD_FAILURE() << "A window is left over:\n" << windowTree(window);
                DestroyWindow(window);
            }
        if (!heapIsWhole()) {
            ADD_FAILURE() << "The heap is damaged: a block was written beyond its end or after "
                             "it was freed.";
            // Nothing that follows could be trusted.
            std::fflush(nullptr);
            std::_Exit(EXIT_FAILURE);
        }
    }

    std::vector<HWND> before_;
};

/// The program's suites, as the sources name them: those with parameters have the names of
/// their instances around, between slashes.
std::set<std::string> suitesOf(const testing::UnitTest& tests, const std::set<std::string>& named) {
    std::set<std::string> suites;
    for (int i = 0; i < tests.total_test_suite_count(); ++i) {
        std::istringstream parts(tests.GetTestSuite(i)->name());
        std::string suite = parts.str();
        for (std::string part; std::getline(parts, part, '/');)
            if (named.contains(part))
                suite = part;
        suites.insert(suite);
    }
    return suites;
}

/// Whether the names (with commas between) are exactly the program's suites; prints what is
/// not so.
bool suitesAreExactly(const std::string& list) {
    std::set<std::string> named;
    std::istringstream parts(list);
    for (std::string part; std::getline(parts, part, ',');)
        named.insert(part);
    const std::set<std::string> present = suitesOf(*testing::UnitTest::GetInstance(), named);

    bool same = true;
    for (const std::string& suite : present)
        if (!named.contains(suite)) {
            std::cout << "The suite " << suite << " is never run: SUITES does not name it.\n";
            same = false;
        }
    for (const std::string& suite : named)
        if (!present.contains(suite)) {
            std::cout << "SUITES names the suite " << suite << ", which does not exist.\n";
            same = false;
        }
    return same;
}

/// scripts/wine-run.sh knows it: nothing has run yet, and it tries once more.
constexpr int noWindowExitCode = 97;

bool canShowWindows() {
    const HWND window = CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                        nullptr, nullptr);
    return window != nullptr && DestroyWindow(window);
}

} // namespace

int main(int argc, char** argv) {
    endOnFault();
    if (!useOwnDesktop() || !canShowWindows()) {
        std::cerr << "No window can be made here: the display or its driver is missing.\n";
        return noWindowExitCode;
    }
    testing::InitGoogleTest(&argc, argv);
    constexpr std::string_view suites = "--kit-suites=";
    for (int i = 1; i < argc; ++i)
        if (std::string_view(argv[i]).starts_with(suites))
            return suitesAreExactly(argv[i] + suites.size()) ? EXIT_SUCCESS : EXIT_FAILURE;

    setReporter({.fail =
                     [](const std::string& message, const Where& where) {
                         ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line()))
                             << message;
                     },
                 .hopeless = [] { return testing::Test::HasFatalFailure(); }});
    testing::UnitTest::GetInstance()->listeners().Append(new AfterEachTest);
    const Watchdog watchdog;
    return RUN_ALL_TESTS();
}

} // namespace kit

int main(int argc, char** argv) {
    return kit::main(argc, argv);
}
