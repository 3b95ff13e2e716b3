#include "Rules.h"
#include "Text.h"

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>

namespace {

/// What one fragment defines, added to what those before it have defined.
class Definitions {
public:
    explicit Definitions(Report& report) : m_report(report) {}

    void read(const std::filesystem::path& file) {
        m_file = file.filename().wstring();
        m_line = 0;
        m_inStrings = false;
        for (const std::string& line : linesOf(file.wstring())) {
            ++m_line;
            readLine(line.substr(0, commentOf(line)));
        }
    }

private:
    /// Where a line's comment begins: the first `//` outside quotes.
    static std::size_t commentOf(const std::string& line) {
        bool quoted = false;
        for (std::size_t i = 0; i < line.size(); ++i) {
            if (line[i] == '"')
                quoted = !quoted;
            else if (!quoted && line.compare(i, 2, "//") == 0)
                return i;
        }
        return line.size();
    }

    void readLine(const std::string& line) {
        static const std::regex table(R"(^\s*STRINGTABLE\b)");
        static const std::regex end(R"(^\s*(END|\})\s*$)");
        static const std::regex text(R"re(^\s*(\w+)\s*,?\s*L?")re");
        static const std::regex resource(R"(^\s*(\w+)\s+(DIALOG|DIALOGEX|DLGINIT|240|ICON)\b)");
        static const std::regex wide(R"re(L"[^"]*[\x80-\xFF])re");
        static const std::regex escape(
            R"(\\([xX][89a-fA-F][0-9a-fA-F](?![0-9a-fA-F])|[2-3][0-7]{2}))");

        std::smatch match;
        if (std::regex_search(line, table)) {
            m_inStrings = true;
        } else if (std::regex_search(line, end)) {
            m_inStrings = false;
        } else if (m_inStrings && std::regex_search(line, match, text)) {
            define("STRING", match[1]);
        } else if (std::regex_search(line, match, resource)) {
            const std::string kind = match[2];
            define(kind == "DIALOG" ? "DIALOGEX" : kind == "240" ? "DLGINIT" : kind, match[1]);
        }
        if (std::regex_search(line, wide))
            wrong(L"L\"...\" with characters beyond ASCII comes out garbled; write \"...\"");
        // After an L the escape is a character of its own, and right.
        if (std::regex_search(line, escape) && line.find("L\"") == std::string::npos)
            wrong(L"an escape beyond ASCII ends the text; write the character itself");
    }

    void define(const std::string& kind, const std::string& symbol) {
        if (!m_defined.insert(kind + " " + symbol).second)
            wrong(widened(symbol) + L" is defined twice");
    }

    void wrong(const std::wstring& text) {
        m_report.add(m_file + L":" + std::to_wstring(m_line), L"source", text);
    }

    Report& m_report;
    std::wstring m_file;
    int m_line = 0;
    bool m_inStrings = false;
    std::set<std::string> m_defined;
};

} // namespace

void checkFragments(const std::wstring& folder, Report& report) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.path().extension() == ".rc")
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    Definitions definitions(report);
    for (const std::filesystem::path& file : files)
        definitions.read(file);
}
