#include "Text.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

std::vector<std::string> linesOf(const std::wstring& file) {
    std::ifstream stream(std::filesystem::path(file), std::ios::binary);
    if (!stream) {
        std::fprintf(stderr, "check-dialogs: cannot read %s\n", narrowed(file).c_str());
        std::exit(2);
    }
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

std::wstring widened(const std::string& utf8) {
    const int size = static_cast<int>(utf8.size());
    std::wstring text(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, text.data(), static_cast<int>(text.size()));
    return text;
}

std::string narrowed(const std::wstring& text) {
    const int size = static_cast<int>(text.size());
    std::string utf8(
        WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, utf8.data(), static_cast<int>(utf8.size()),
                        nullptr, nullptr);
    return utf8;
}

std::wstring withoutMnemonic(const std::wstring& caption) {
    std::wstring text;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == L'&' && ++i == caption.size())
            break;
        text += caption[i];
    }
    return text;
}

wchar_t mnemonicOf(const std::wstring& caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != L'&')
            continue;
        const wchar_t letter = caption[++i];
        if (letter != L'&')
            return static_cast<wchar_t>(reinterpret_cast<ULONG_PTR>(
                CharUpperW(reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(letter)))));
    }
    return 0;
}
