// What every binary of the build has: the marks of a hardened one. What every shipped one has: its
// version information.
#include "PortableExecutable.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>

namespace {

const std::set<std::wstring> Shipped = {L"Cuadros.dll",    L"CuadrosENU.dll", L"CuadrosLOC.dll",
                                        L"CuadrosAfx.dll", L"Cotana.dll",     L"Ejemplo.exe"};

/// Made by the compiler's authors, copied beside ours.
const std::set<std::wstring> NotOurs = {L"libstdc++-6.dll", L"libgcc_s_seh-1.dll",
                                        L"libwinpthread-1.dll"};

std::vector<std::filesystem::path> OurBinaries() {
    std::vector<std::filesystem::path> binaries;
    for (const auto& entry : std::filesystem::directory_iterator(BinaryFolder())) {
        const std::wstring extension = entry.path().extension().native();
        if ((extension == L".dll" || extension == L".exe") &&
            !NotOurs.contains(entry.path().filename().native()))
            binaries.push_back(entry.path());
    }
    return binaries;
}

/// A file's version information.
class Version {
public:
    explicit Version(const std::filesystem::path& file)
        : m_data(::GetFileVersionInfoSize(file.c_str(), nullptr)) {
        if (m_data.empty() ||
            !::GetFileVersionInfo(file.c_str(), 0, static_cast<DWORD>(m_data.size()),
                                  m_data.data()))
            ADD_FAILURE() << file << " has no version information";
    }

    /// A text by its name; empty when there is none.
    std::wstring Text(const std::wstring& name) const {
        void* text = nullptr;
        UINT length = 0;
        const std::wstring path = L"\\StringFileInfo\\040904B0\\" + name;
        if (!::VerQueryValue(m_data.data(), path.c_str(), &text, &length) || length == 0)
            return {};
        return static_cast<const wchar_t*>(text);
    }

    /// The file's version number, as its text has it: 1.2.3.
    std::wstring Number() const {
        void* fixed = nullptr;
        UINT length = 0;
        if (!::VerQueryValue(m_data.data(), L"\\", &fixed, &length))
            return {};
        const auto* const info = static_cast<const VS_FIXEDFILEINFO*>(fixed);
        return std::to_wstring(HIWORD(info->dwFileVersionMS)) + L"." +
               std::to_wstring(LOWORD(info->dwFileVersionMS)) + L"." +
               std::to_wstring(HIWORD(info->dwFileVersionLS));
    }

private:
    std::vector<BYTE> m_data;
};

} // namespace

TEST(Binaries, AreAllHere) {
    for (const std::wstring& name : Shipped)
        EXPECT_TRUE(std::filesystem::exists(BinaryFolder() / name)) << name.c_str();
}

TEST(Binaries, AreHardened) {
    constexpr WORD marks = IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE |
                           IMAGE_DLLCHARACTERISTICS_NX_COMPAT |
                           IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA;
    const std::vector<std::filesystem::path> binaries = OurBinaries();
    ASSERT_GE(binaries.size(), Shipped.size());
    for (const std::filesystem::path& file : binaries) {
        const PortableExecutable binary(file);
        EXPECT_EQ(binary.characteristics() & marks, marks) << file;
        EXPECT_TRUE(binary.isRelocatable() || !binary.hasCode()) << file;
    }
}

TEST(Binaries, TellTheirVersion) {
    for (const std::wstring& name : Shipped) {
        SCOPED_TRACE(std::filesystem::path(name));
        const Version version(BinaryFolder() / name);
        EXPECT_EQ(version.Text(L"ProductName"), L"Cuadros");
        EXPECT_NE(version.Text(L"FileDescription"), L"");
        EXPECT_EQ(version.Text(L"FileVersion"), version.Number());
        EXPECT_EQ(version.Text(L"ProductVersion"), CUADROS_VERSION);
        // The fallback of the language file is a copy of it.
        EXPECT_EQ(version.Text(L"OriginalFilename"),
                  name == L"CuadrosLOC.dll" ? L"CuadrosENU.dll" : name);
    }
}

TEST(Binaries, FallbackIsTheLanguageFile) {
    const auto read = [](const wchar_t* name) {
        return PortableExecutable(BinaryFolder() / name).bytes();
    };
    EXPECT_EQ(read(L"CuadrosLOC.dll"), read(L"CuadrosENU.dll"));
    EXPECT_FALSE(PortableExecutable(BinaryFolder() / L"CuadrosENU.dll").hasCode());
}
