#include "kit/kit.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>
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

/// The program's tests, for each source the names that a filter takes.
std::map<std::string, std::string> testsBySource(const testing::UnitTest& program) {
    std::map<std::string, std::string> tests;
    for (int i = 0; i < program.total_test_suite_count(); ++i) {
        const testing::TestSuite& suite = *program.GetTestSuite(i);
        for (int j = 0; j < suite.total_test_count(); ++j) {
            const testing::TestInfo& test = *suite.GetTestInfo(j);
            const std::string path = test.file();
            tests[path.substr(path.find_last_of("/\\") + 1)] +=
                std::string(suite.name()) + "." + test.name() + ":";
        }
    }
    return tests;
}

/// Chooses the tests of one source; false when there is none.
bool chooseSource(const std::string& source) {
    const auto tests = testsBySource(*testing::UnitTest::GetInstance());
    const auto chosen = tests.find(source);
    if (chosen == tests.end()) {
        std::cout << "No test stands in " << source << ".\n";
        return false;
    }
    testing::GTEST_FLAG(filter) = chosen->second;
    return true;
}

/// Whether every test of the program stands in one of the sources (with commas between); prints
/// which do not.
bool sourcesAreAll(const std::string& list) {
    std::set<std::string> named;
    std::istringstream parts(list);
    for (std::string part; std::getline(parts, part, ',');)
        named.insert(part);
    bool all = true;
    for (const auto& [source, tests] : testsBySource(*testing::UnitTest::GetInstance()))
        if (!named.contains(source)) {
            std::cout << "Never run, since no entry names " << source << ": " << tests << "\n";
            all = false;
        }
    return all;
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
    testing::InitGoogleTest(&argc, argv);
    constexpr std::string_view source = "--kit-source=";
    constexpr std::string_view sources = "--kit-sources=";
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument.starts_with(sources))
            return sourcesAreAll(argv[i] + sources.size()) ? EXIT_SUCCESS : EXIT_FAILURE;
        if (argument.starts_with(source) && !chooseSource(argv[i] + source.size()))
            return EXIT_FAILURE;
    }
    if (!useOwnDesktop() || !canShowWindows()) {
        std::cerr << "No window can be made here: the display or its driver is missing.\n";
        return noWindowExitCode;
    }

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
