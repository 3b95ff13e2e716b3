#include "Report.h"

#include "Text.h"

#include <algorithm>
#include <cstdio>

void Report::readAllowed(const std::wstring& file) {
    for (std::string line : linesOf(file)) {
        line.erase(std::min(line.find('#'), line.size()));
        line.erase(line.find_last_not_of(" \t") + 1);
        if (!line.empty())
            m_allowed.push_back({widened(line)});
    }
}

void Report::add(const std::wstring& place, const std::wstring& rule, const std::wstring& text) {
    const std::wstring line = place + L" [" + rule + L"]";
    for (Allowance& allowance : m_allowed) {
        if (allowance.line == line) {
            allowance.used = true;
            return;
        }
    }
    m_findings.push_back({place, rule, text});
}

int Report::print() const {
    int count = 0;
    for (const Finding& finding : m_findings) {
        std::printf("%s: %s [%s]\n", narrowed(finding.place).c_str(),
                    narrowed(finding.text).c_str(), narrowed(finding.rule).c_str());
        ++count;
    }
    for (const Allowance& allowance : m_allowed) {
        if (!allowance.used) {
            std::printf("%s: allowed, but no longer needed\n", narrowed(allowance.line).c_str());
            ++count;
        }
    }
    return count;
}
