// What was measured, as text for a terminal or as the tables of a page.
#pragma once

#include <string>
#include <vector>

#include "bench/Comparison.h"

namespace bench {

class Report {
public:
    /// A piece of work that both did. @param target the ratio not to be passed; 0 sets none.
    void add(const std::string& what, const Comparison& comparison, double target = 0);
    /// A piece of work with a bound of its own. @param target in microseconds; 0 sets none.
    void addBounded(const std::string& what, const Comparison& comparison, double target);
    /// Work that only the framework's side did.
    void add(const std::string& what, const Timing& timing);
    /// Something that is no time.
    void addFact(const std::string& what, const std::string& value);

    void print(bool markdown) const;

private:
    using Row = std::vector<std::string>;
    std::vector<Row> m_comparisons;
    std::vector<Row> m_times;
    std::vector<Row> m_facts;
};

} // namespace bench
