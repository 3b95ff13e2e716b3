#include "bench/Report.h"

#include <algorithm>
#include <cstdio>

namespace bench {

namespace {

template <class... Args>
std::string formatted(const char* format, Args... args) {
    char text[128];
    std::snprintf(text, sizeof text, format, args...);
    return text;
}

std::string duration(double microseconds) {
    if (microseconds < 1000)
        return formatted("%.1f us", microseconds);
    return formatted(microseconds < 100000 ? "%.2f ms" : "%.0f ms", microseconds / 1000);
}

std::string verdict(bool met) {
    return met ? "met" : "missed";
}

std::vector<std::string> comparisonRow(const std::string& what, const Comparison& comparison,
                                       const std::string& target) {
    return {what,
            formatted("%.2f", comparison.ratio()),
            target,
            duration(comparison.framework.median),
            duration(comparison.raw.median),
            duration(comparison.framework.least),
            duration(comparison.raw.least)};
}

using Table = std::vector<std::vector<std::string>>;

void printTable(const char* title, const Table& rows, bool markdown) {
    std::vector<std::size_t> widths(rows.front().size());
    for (const auto& row : rows)
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], row[i].size());

    std::printf(markdown ? "### %s\n\n" : "%s\n", title);
    bool heading = true;
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            std::printf(markdown ? "| %-*s " : "%-*s  ", static_cast<int>(widths[i]),
                        row[i].c_str());
        std::printf(markdown ? "|\n" : "\n");
        if (markdown && heading) {
            // The first column has words, the others have numbers.
            for (std::size_t i = 0; i < row.size(); ++i)
                std::printf("|%s%s", std::string(widths[i] + 1, '-').c_str(), i == 0 ? "-" : ":");
            std::printf("|\n");
        }
        heading = false;
    }
    std::printf("\n");
}

void printUnder(const char* title, std::vector<std::string> headings, const Table& rows,
                bool markdown) {
    if (rows.empty())
        return;
    Table table = rows;
    table.insert(table.begin(), std::move(headings));
    printTable(title, table, markdown);
}

} // namespace

void Report::add(const std::string& what, const Comparison& comparison, double target) {
    std::string bound = "-";
    if (target > 0)
        bound = formatted("%.2f ", target) + verdict(comparison.ratio() <= target);
    m_comparisons.push_back(comparisonRow(what, comparison, bound));
}

void Report::addBounded(const std::string& what, const Comparison& comparison, double target) {
    const std::string bound =
        duration(target) + " " + verdict(comparison.framework.median <= target);
    m_comparisons.push_back(comparisonRow(what, comparison, bound));
}

void Report::add(const std::string& what, const Timing& timing) {
    m_times.push_back({what, duration(timing.median), duration(timing.least)});
}

void Report::addFact(const std::string& what, const std::string& value) {
    m_facts.push_back({what, value});
}

void Report::print(bool markdown) const {
    printUnder(
        "Against the same work by hand",
        {"Work", "Ratio", "Target", "Framework", "By hand", "Framework, least", "By hand, least"},
        m_comparisons, markdown);
    printUnder("Alone", {"Work", "Median", "Least"}, m_times, markdown);
    printUnder("Sizes and growth", {"What", "Number"}, m_facts, markdown);
    std::fflush(stdout);
}

} // namespace bench
