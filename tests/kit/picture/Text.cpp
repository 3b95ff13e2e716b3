#include "kit/picture/Text.h"

#include <windows.h>

namespace kit {

std::string utf8(std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    std::string result(
        WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(),
                        static_cast<int>(result.size()), nullptr, nullptr);
    return result;
}

std::wstring utf16(std::string_view text) {
    const int length = static_cast<int>(text.size());
    std::wstring result(MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, result.data(),
                        static_cast<int>(result.size()));
    return result;
}

std::string inQuotes(std::wstring_view text) {
    std::wstring result = L"\"";
    for (const wchar_t c : text) {
        switch (c) {
        case L'\n':
            result += L"\\n";
            break;
        case L'\r':
            result += L"\\r";
            break;
        case L'\t':
            result += L"\\t";
            break;
        default:
            result += c;
        }
    }
    return utf8(result + L"\"");
}

} // namespace kit
