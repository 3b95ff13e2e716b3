// A Windows binary as a file: what its headers say, and what it exports.
#pragma once

#include <windows.h>

#include <filesystem>
#include <string>
#include <vector>

class PortableExecutable {
public:
    /// Reads a 64-bit binary. Throws std::runtime_error where the file is none.
    explicit PortableExecutable(const std::filesystem::path& file);

    /// IMAGE_DLLCHARACTERISTICS_...
    WORD characteristics() const { return m_headers.OptionalHeader.DllCharacteristics; }
    const std::string& bytes() const { return m_bytes; }
    bool hasCode() const { return m_headers.OptionalHeader.AddressOfEntryPoint != 0; }
    /// Whether it can be loaded at any address.
    bool isRelocatable() const;
    /// The exported names, as they are in the file.
    std::vector<std::string> exports() const;

private:
    const IMAGE_DATA_DIRECTORY& directory(int index) const {
        return m_headers.OptionalHeader.DataDirectory[index];
    }
    template <class T>
    T at(std::size_t offset) const;
    std::size_t offsetOf(DWORD virtualAddress) const;

    std::string m_bytes;
    IMAGE_NT_HEADERS64 m_headers;
    std::vector<IMAGE_SECTION_HEADER> m_sections;
};

/// The folder of the test program, where the binaries of the build lie.
std::filesystem::path BinaryFolder();
