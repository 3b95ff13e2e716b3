#include "PortableExecutable.h"

#include <cstring>
#include <fstream>
#include <stdexcept>

PortableExecutable::PortableExecutable(const std::filesystem::path& file) {
    m_bytes.resize(std::filesystem::file_size(file));
    std::ifstream(file, std::ios::binary)
        .read(m_bytes.data(), static_cast<std::streamsize>(m_bytes.size()));
    const auto newHeader = static_cast<std::size_t>(at<IMAGE_DOS_HEADER>(0).e_lfanew);
    m_headers = at<IMAGE_NT_HEADERS64>(newHeader);
    if (m_headers.Signature != IMAGE_NT_SIGNATURE ||
        m_headers.OptionalHeader.Magic != IMAGE_NT_OPTIONAL_HDR64_MAGIC)
        throw std::runtime_error(file.string() + " is no 64-bit binary");
    for (WORD i = 0; i < m_headers.FileHeader.NumberOfSections; ++i)
        m_sections.push_back(at<IMAGE_SECTION_HEADER>(newHeader + sizeof m_headers +
                                                      i * sizeof(IMAGE_SECTION_HEADER)));
}

template <class T>
T PortableExecutable::at(std::size_t offset) const {
    if (offset + sizeof(T) > m_bytes.size())
        throw std::runtime_error("the file is cut off");
    T value;
    std::memcpy(&value, m_bytes.data() + offset, sizeof value);
    return value;
}

std::size_t PortableExecutable::offsetOf(DWORD virtualAddress) const {
    for (const IMAGE_SECTION_HEADER& section : m_sections)
        if (virtualAddress >= section.VirtualAddress &&
            virtualAddress < section.VirtualAddress + section.SizeOfRawData)
            return virtualAddress - section.VirtualAddress + section.PointerToRawData;
    throw std::runtime_error("an address is outside the file");
}

bool PortableExecutable::isRelocatable() const {
    return !(m_headers.FileHeader.Characteristics & IMAGE_FILE_RELOCS_STRIPPED) &&
           directory(IMAGE_DIRECTORY_ENTRY_BASERELOC).Size > 0;
}

std::vector<std::string> PortableExecutable::exports() const {
    if (directory(IMAGE_DIRECTORY_ENTRY_EXPORT).Size == 0)
        return {};
    const auto table = at<IMAGE_EXPORT_DIRECTORY>(
        offsetOf(directory(IMAGE_DIRECTORY_ENTRY_EXPORT).VirtualAddress));
    std::vector<std::string> names;
    for (DWORD i = 0; i < table.NumberOfNames; ++i) {
        const auto name = at<DWORD>(offsetOf(table.AddressOfNames) + i * sizeof(DWORD));
        names.emplace_back(m_bytes.c_str() + offsetOf(name));
    }
    return names;
}

std::filesystem::path BinaryFolder() {
    wchar_t path[MAX_PATH];
    ::GetModuleFileName(nullptr, path, MAX_PATH);
    return std::filesystem::path(path).parent_path();
}
