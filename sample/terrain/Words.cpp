#include "sample/terrain/Words.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "sample/TextFile.h"

namespace {

constexpr long long BlockSize = 64 * 1024;

bool IsBlank(char character) {
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

char Lower(char character) {
    return static_cast<char>(character >= 'A' && character <= 'Z' ? character - 'A' + 'a'
                                                                  : character);
}

} // namespace

Words::Words(const ByteStream& bytes)
    : m_Bytes(bytes), m_Block(static_cast<size_t>(std::clamp(bytes.size, 1LL, BlockSize))) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    Fill();
    if (std::string_view(m_Block.data(), m_Size).starts_with(mark))
        m_Next = mark.size();
}

bool Words::Advance() {
    while (More() && IsBlank(m_Block[m_Next])) {
        if (m_Block[m_Next++] == '\n')
            ++m_Line;
    }
    if (!More())
        return false;
    m_WordLine = m_Line;
    for (m_Length = 0; More() && !IsBlank(m_Block[m_Next]); ++m_Next)
        Append(m_Block[m_Next]);
    return true;
}

void Words::Append(char character) {
    if (character == '\0')
        throw Fault{L"this is not a text file"};
    if (static_cast<unsigned char>(character) < ' ')
        throw Fault{L"there is a control character in the line"};
    if (m_Length == m_Word.size()) {
        throw Fault{L"there is a word of more than " + std::to_wstring(m_Word.size()) +
                    L" characters"};
    }
    m_Word[m_Length++] = character;
}

bool Words::More() {
    if (m_Next == m_Size)
        Fill();
    return m_Next < m_Size;
}

void Words::Fill() {
    m_Size = m_Bytes.read(m_Block.data(), m_Block.size());
    m_Next = 0;
}

std::wstring Shown(std::string_view word) {
    std::wstring shown;
    for (const char character : word)
        shown += character >= ' ' && character <= '~' ? static_cast<wchar_t>(character) : L'?';
    return shown;
}

bool IsNamed(std::string_view word, std::string_view name) {
    return std::ranges::equal(word, name, {}, Lower, Lower);
}

std::optional<double> Number(std::string_view word) {
    const char* const end = word.data() + word.size();
    // A plus before another sign is not taken off, and so refused.
    const bool plus = word.size() > 1 && word[0] == '+' && word[1] != '-';
    double number = 0;
    const auto [last, error] = std::from_chars(word.data() + plus, end, number);
    if (last != end || error == std::errc::invalid_argument)
        return {};
    if (error == std::errc::result_out_of_range) {
        // Too large or too small: from_chars does not say which, but the sign of the exponent does.
        const bool small = word.find("e-") != word.npos || word.find("E-") != word.npos;
        return small ? 0 : HUGE_VAL;
    }
    return number;
}

bool IsNan(std::string_view word) {
    return std::isnan(Number(word).value_or(0));
}

double FiniteNumber(std::string_view word, const std::wstring& name) {
    const std::optional<double> number = Number(word);
    if (!number)
        throw Fault{name + L" is not a number: " + Shown(word)};
    if (!std::isfinite(*number))
        throw Fault{name + L" is not a finite number: " + Shown(word)};
    return *number;
}

int WholeNumber(std::string_view word, const std::wstring& name, int least, int most) {
    const char* const end = word.data() + word.size();
    const bool plus = word.starts_with('+') && !word.starts_with("+-");
    int number = 0;
    const auto [last, error] = std::from_chars(word.data() + plus, end, number);
    if (last != end || error == std::errc::invalid_argument)
        throw Fault{name + L" is not a whole number: " + Shown(word)};
    const bool tooLong = error == std::errc::result_out_of_range;
    if (tooLong ? word[0] == '-' : number < least)
        throw Fault{name + L" is below " + std::to_wstring(least) + L": " + Shown(word)};
    if (tooLong || number > most)
        throw Fault{name + L" is above " + std::to_wstring(most) + L": " + Shown(word)};
    return number;
}

const HeaderKey& HeaderKeys::Take(const Words& words) {
    const auto key = std::ranges::find_if(
        m_Keys, [&](const HeaderKey& one) { return IsNamed(words.Word(), one.name); });
    if (key == m_Keys.end())
        throw Fault{L"the header key is unknown: " + Shown(words.Word())};
    long long& line = m_Lines[key->field];
    if (line != 0)
        throw Fault{Shown(key->name) + L" is already given in line " + std::to_wstring(line)};
    line = words.Line();
    return *key;
}

void HeaderKeys::Need(size_t field, std::wstring_view name) const {
    if (m_Lines[field] == 0)
        throw Fault{L"the header lacks " + std::wstring(name)};
}
