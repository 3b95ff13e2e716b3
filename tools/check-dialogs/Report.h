#pragma once

#include <string>
#include <vector>

/// What is wrong, and where.
struct Finding {
    std::wstring place; ///< as it is printed: "TriangulacionDlg (19011): control 19013"
    std::wstring rule;  ///< short name of the broken rule: "room"
    std::wstring text;  ///< what is wrong, for the one who mends it
};

/// Collects findings, leaves out those that are allowed, and prints the rest.
class Report {
public:
    /// Reads a list of allowed findings: one `<place> [<rule>]` a line, `#` begins a comment.
    void readAllowed(const std::wstring& file);

    void add(const std::wstring& place, const std::wstring& rule, const std::wstring& text);

    /// Prints the findings and returns their number. An allowance that nothing used is one too.
    int print() const;

private:
    struct Allowance {
        std::wstring line;
        bool used = false;
    };

    std::vector<Finding> m_findings;
    std::vector<Allowance> m_allowed;
};
