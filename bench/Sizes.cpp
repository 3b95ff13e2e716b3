// How much of each binary is loaded: without symbols.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <span>

#include "bench/Sections.h"

namespace bench {

namespace {

/// Bytes of the headers and of the sections that are no debug information, as a loaded module
/// describes itself.
DWORD loadedSize(HMODULE module) {
    // A module that was loaded as data has bits in its handle that say so.
    const auto base = reinterpret_cast<ULONG_PTR>(module) & ~ULONG_PTR{3};
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const headers =
        reinterpret_cast<const IMAGE_NT_HEADERS*>(base + static_cast<ULONG_PTR>(dos->e_lfanew));
    DWORD size = headers->OptionalHeader.SizeOfHeaders;
    for (const IMAGE_SECTION_HEADER& section :
         std::span(IMAGE_FIRST_SECTION(headers), headers->FileHeader.NumberOfSections)) {
        // The names of debug sections are too long for their place: a slash and a number.
        if (section.Name[0] != '/')
            size += section.SizeOfRawData;
    }
    return size;
}

} // namespace

void measureSizes(Bench& bench) {
    for (const wchar_t* name :
         {L"Cuadros.dll", L"CuadrosENU.dll", L"CuadrosAfx.dll", L"Cotana.dll"}) {
        // As an image of resources it is laid out as it would be to run, and no code runs.
        const HMODULE module = LoadLibraryExW(
            name, nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
        if (!module) {
            bench.fail("a binary is missing");
            continue;
        }
        char size[32];
        std::snprintf(size, sizeof size, "%.0f KB", loadedSize(module) / 1024.0);
        std::string narrow;
        for (const wchar_t* c = name; *c; ++c)
            narrow.push_back(static_cast<char>(*c));
        bench.report.addFact(narrow + " without symbols", size);
        FreeLibrary(module);
    }
}

} // namespace bench
