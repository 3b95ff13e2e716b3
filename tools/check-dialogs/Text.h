#pragma once

#include <string>
#include <vector>

/// The lines of a text file, without their ends. Ends the program when it cannot be read.
std::vector<std::string> linesOf(const std::wstring& file);

std::wstring widened(const std::string& utf8);
std::string narrowed(const std::wstring& text);

/// The caption without its mnemonic's ampersand.
std::wstring withoutMnemonic(const std::wstring& caption);

/// The caption's mnemonic, in upper case; 0 when it has none.
wchar_t mnemonicOf(const std::wstring& caption);
