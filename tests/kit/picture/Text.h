#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <utility>

namespace kit {

/// A text argument: takes literals, std::wstring, and string classes that convert to
/// `const wchar_t*`.
class Text : public std::wstring {
public:
    Text() = default;
    Text(const wchar_t* text) : std::wstring(text) {}
    Text(std::wstring text) : std::wstring(std::move(text)) {}
    Text(std::wstring_view text) : std::wstring(text) {}
    template <std::convertible_to<const wchar_t*> StringClass>
    Text(const StringClass& text) : std::wstring(static_cast<const wchar_t*>(text)) {}
};

/// UTF-8 of a text, as messages and file contents have it.
std::string utf8(std::wstring_view text);

/// The text of UTF-8.
std::wstring utf16(std::string_view text);

/// UTF-8 of a text in quotes, with control characters made visible.
std::string inQuotes(std::wstring_view text);

} // namespace kit
