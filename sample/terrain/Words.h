// The words of the text files that hold elevations, or say where they are, and what the words mean.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sample/terrain/ByteStream.h"

/// The words of a text: what stands between blanks and ends of lines. It is read block by block,
/// and a word has at most 100 characters.
class Words {
public:
    /// Throws a Fault when the bytes cannot be read.
    explicit Words(const ByteStream& bytes);

    /// Goes to the next word; false at the end of the text. Throws a Fault when it is none.
    bool Advance();

    std::string_view Word() const { return {m_Word.data(), m_Length}; }

    /// Line of the last word, from 1.
    long long Line() const { return m_WordLine; }

private:
    void Append(char character);
    bool More();
    void Fill();

    ByteStream m_Bytes;
    std::vector<char> m_Block;
    size_t m_Size = 0;
    size_t m_Next = 0;
    std::array<char, 100> m_Word{};
    size_t m_Length = 0;
    long long m_Line = 1;
    long long m_WordLine = 1;
};

/// A word for a message.
std::wstring Shown(std::string_view word);

/// Whether a word is `name`, which is in one case, in either case.
bool IsNamed(std::string_view word, std::string_view name);

/// The number that a word is; none when it is not one.
std::optional<double> Number(std::string_view word);

/// "nan", as several programs mark what is missing.
bool IsNan(std::string_view word);

/// The finite number that a word is; throws a Fault when it is none. `name` is what it is called.
double FiniteNumber(std::string_view word, const std::wstring& name);

/// The whole number that a word is, from `least` to `most`; throws a Fault when it is none.
int WholeNumber(std::string_view word, const std::wstring& name, int least, int most);

/// A key of a header, and which of its fields it gives.
struct HeaderKey {
    std::string_view name;
    size_t field;
};

/// The keys of a header that were read, each of which may give a field that is not yet given.
class HeaderKeys {
public:
    /// @param keys   those that there are; they outlive this.
    /// @param fields how many fields they give.
    HeaderKeys(std::span<const HeaderKey> keys, size_t fields) : m_Keys(keys), m_Lines(fields) {}

    /// The key that the last word is; throws a Fault when it is none, or its field is given.
    const HeaderKey& Take(const Words& words);

    /// Throws a Fault, which calls the field by `name`, unless it is given.
    void Need(size_t field, std::wstring_view name) const;

private:
    std::span<const HeaderKey> m_Keys;
    std::vector<long long> m_Lines; ///< In which a field is given; 0 where it is not.
};
