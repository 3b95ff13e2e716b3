#pragma once

#include <windows.h>

#include <set>
#include <string>

/// Type of the initial items of a dialog's combos and list boxes.
const LPCWSTR initialItemsType = MAKEINTRESOURCEW(240);

/// How findings name the two modules.
const std::wstring languagePlace = L"language file";
const std::wstring libraryPlace = L"library";

/// The numbers of a module's resources of one type.
std::set<int> resourcesOf(HMODULE module, LPCWSTR type);

struct Bytes {
    const BYTE* first = nullptr;
    DWORD count = 0;
};

/// A resource's contents; nothing when it is not there.
Bytes bytesOf(HMODULE module, int number, LPCWSTR type);
