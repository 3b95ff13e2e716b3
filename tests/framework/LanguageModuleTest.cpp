// A module's texts in the user's language: a file of resources beside the module, named after it
// and the language. These tests run for an English user and, once more, for a German one.
#include "TestApp.h"
#include "modules/ModuleFiles.h"
#include "modules/ModuleResource.h"
#include "modules/Program.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <memory>
#include <string_view>

namespace {

HINSTANCE Found(UINT id) {
    return AfxFindResourceHandle(MAKEINTRESOURCE(id), RT_RCDATA);
}

std::wstring Which() {
    CString text;
    text.LoadString(IDS_WHICH);
    return text.GetString();
}

/// The three letters of a language, and of that language in its main country.
std::wstring Letters(LANGID language) {
    wchar_t letters[9];
    ::GetLocaleInfo(language, LOCALE_SABBREVLANGNAME, letters, 9);
    return letters;
}

std::wstring UsersLetters() {
    return Letters(::GetUserDefaultUILanguage());
}

/// Another current directory, for the length of a scope.
class CurrentFolder {
public:
    explicit CurrentFolder(const std::filesystem::path& folder) {
        std::filesystem::current_path(folder);
    }
    ~CurrentFolder() { std::filesystem::current_path(m_before); }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;

private:
    std::filesystem::path m_before = std::filesystem::current_path();
};

/// A folder before all others in the search path, for the length of a scope.
class FolderOnPath {
public:
    explicit FolderOnPath(const std::filesystem::path& folder) {
        wchar_t before[32767];
        ::GetEnvironmentVariable(L"PATH", before, static_cast<DWORD>(std::size(before)));
        m_before = before;
        ::SetEnvironmentVariable(L"PATH", (folder.native() + L";" + m_before).c_str());
    }
    ~FolderOnPath() { ::SetEnvironmentVariable(L"PATH", m_before.c_str()); }
    FolderOnPath(const FolderOnPath&) = delete;
    FolderOnPath& operator=(const FolderOnPath&) = delete;

private:
    std::wstring m_before;
};

} // namespace

TEST(LanguageModule, TestsRunForTheUserThatTheyAreMeantFor) {
    const char* const locale = std::getenv("CUADROS_LOCALE");
    const bool german = locale && std::string_view(locale).starts_with("de_DE");
    EXPECT_EQ(::GetUserDefaultUILanguage(), german ? 0x407 : 0x409);
    EXPECT_EQ(UsersLetters(), german ? L"DEU" : L"ENU");
}

TEST(LanguageModule, UsersLanguageIsTakenBeforeTheFallback) {
    const TemporaryFolder folder;
    folder.Put(L"language_right.dll", L"Karte" + UsersLetters() + L".dll");
    folder.Put(L"language_other.dll", L"KarteLOC.dll");
    const LoadedModule map(folder.Put(L"probe.dll", L"Karte.dll"));
    EXPECT_EQ(Which(), L"the right one");
}

TEST(LanguageModule, FallbackIsTakenWhereTheUsersLanguageIsMissing) {
    const TemporaryFolder folder;
    folder.Put(L"language_right.dll", L"KarteLOC.dll");
    folder.Put(L"language_other.dll", L"KarteFRA.dll"); // neither the user's nor the system's
    const LoadedModule map(folder.Put(L"probe.dll", L"Karte.dll"));
    EXPECT_EQ(Which(), L"the right one");
}

TEST(LanguageModule, AnotherLanguageIsNeverTaken) {
    const TemporaryFolder folder;
    folder.Put(L"language_other.dll", L"KarteFRA.dll");
    folder.Put(L"language_other.dll", L"Karte.ENU.dll");
    folder.Put(L"language_other.dll", L"ENU.dll");
    folder.Put(L"language_other.dll", L"Other" + UsersLetters() + L".dll");
    const LoadedModule map(folder.Put(L"probe.dll", L"Karte.dll"));
    ASSERT_TRUE(map.handle());
    EXPECT_EQ(Which(), L"");
}

TEST(LanguageModule, MissingOneLeavesTheModulesOwnResources) {
    const TemporaryFolder folder;
    const LoadedModule map(folder.Put(L"probe.dll", L"Karte.dll"));
    ASSERT_TRUE(map.handle());
    EXPECT_EQ(Found(ID_ANYWHERE), map.handle());
    EXPECT_EQ(Found(ID_LANGUAGE), nullptr);
}

TEST(LanguageModule, GoesWithItsModule) {
    const TemporaryFolder folder;
    const std::wstring language = folder.Put(L"language_right.dll", L"KarteLOC.dll");
    {
        const LoadedModule map(folder.Put(L"probe.dll", L"Karte.dll"));
        EXPECT_EQ(Which(), L"the right one");
        EXPECT_NE(Found(ID_LANGUAGE), nullptr);
    }
    EXPECT_EQ(Which(), L"");
    EXPECT_EQ(Found(ID_LANGUAGE), nullptr);
    EXPECT_TRUE(::DeleteFile(language.c_str())) << "the file is still in use";
}

TEST(LanguageModule, IsLookedForInTheModulesFolderOnly) {
    const TemporaryFolder folder;
    for (const wchar_t* elsewhere : {L"current", L"onpath"})
        for (const std::wstring& language : {UsersLetters(), std::wstring(L"LOC")})
            folder.Put(L"language_other.dll", elsewhere + (L"\\Karte" + language) + L".dll");
    const std::wstring file = folder.Put(L"probe.dll", L"own\\Karte.dll");
    const CurrentFolder current(folder.path() / L"current");
    const FolderOnPath onPath(folder.path() / L"onpath");
    {
        const LoadedModule map(file);
        ASSERT_TRUE(map.handle());
        EXPECT_EQ(Which(), L"") << "another folder's file was taken";
    }
    folder.Put(L"language_right.dll", L"own\\KarteLOC.dll");
    const LoadedModule map(file);
    EXPECT_EQ(Which(), L"the right one");
}

TEST(LanguageModule, IsNotAModuleOfTheSameNameThatIsLoadedAlready) {
    const TemporaryFolder folder;
    const LoadedModule decoy(
        folder.Put(L"language_other.dll", L"elsewhere\\Karte" + UsersLetters() + L".dll"));
    ASSERT_TRUE(decoy.handle());
    const std::wstring file = folder.Put(L"probe.dll", L"own\\Karte.dll");
    {
        const LoadedModule map(file);
        EXPECT_EQ(Which(), L"");
    }
    folder.Put(L"language_right.dll", L"own\\Karte" + UsersLetters() + L".dll");
    const LoadedModule map(file);
    EXPECT_EQ(Which(), L"the right one");
}

TEST(LanguageModule, GetsNoChanceToRunCode) {
    const TemporaryFolder folder;
    folder.Put(L"probe.dll", L"Karte" + UsersLetters() + L".dll"); // notes what it runs
    TakeDiary();
    const LoadedModule map(folder.Put(L"titled.dll", L"Karte.dll"));
    ASSERT_TRUE(map.handle());
    EXPECT_NE(Found(ID_PROBE), nullptr) << "its resources are there";
    EXPECT_EQ(Events(TakeDiary()), std::vector<std::string>{});
}

TEST(LanguageModule, FileThatIsNoneIsPassedOver) {
    const TemporaryFolder folder;
    const auto broken = folder.path() / (L"Karte" + UsersLetters() + L".dll");
    std::ofstream(broken) << "This is not a module.";
    folder.Put(L"language_right.dll", L"KarteLOC.dll");
    const std::wstring file = folder.Put(L"probe.dll", L"Karte.dll");
    {
        const LoadedModule map(file);
        EXPECT_EQ(Which(), L"the right one");
    }
    std::ofstream(broken, std::ios::trunc).close();
    {
        const LoadedModule map(file);
        EXPECT_EQ(Which(), L"the right one");
    }
    std::filesystem::remove(broken);
    std::filesystem::create_directory(broken);
    const LoadedModule map(file);
    EXPECT_EQ(Which(), L"the right one");
}

TEST(LanguageModule, ModuleMayLieDeepAndItsNameHaveDots) {
    const TemporaryFolder folder;
    std::wstring deep = L"deep.folder, part 2";
    deep.resize(230 - folder.path().native().size(), L'x');
    folder.Put(L"language_right.dll", deep + L"\\Karte.v2LOC.dll");
    const LoadedModule map(folder.Put(L"probe.dll", deep + L"\\Karte.v2.dll"));
    ASSERT_TRUE(map.handle());
    EXPECT_EQ(Which(), L"the right one");
    EXPECT_STREQ(map.Call<CWinApp*>("ProbeApplication")->m_pszExeName, L"Karte.v2");
}

TEST(LanguageModule, PathBeyondTheSystemsUsualLengthIsTakenWhole) {
    const TemporaryFolder folder;
    std::wstring deep = L"deep";
    deep.resize(230 - folder.path().native().size(), L'x');
    const std::wstring name(60, L'K');
    const LoadedModule map(folder.Put(L"probe.dll", deep + L"\\" + name + L".dll"));
    ASSERT_TRUE(map.handle());
    EXPECT_EQ(map.Call<CWinApp*>("ProbeApplication")->m_pszExeName, name);
    EXPECT_EQ(Found(ID_PROBE), map.handle());
}

TEST(LanguageModule, EachModuleHasItsOwn) {
    const TemporaryFolder folder;
    folder.Put(L"language_right.dll", L"UnoLOC.dll");
    folder.Put(L"language_other.dll", L"DosLOC.dll");
    const LoadedModule one(folder.Put(L"probe.dll", L"Uno.dll"));
    EXPECT_EQ(Which(), L"the right one");
    {
        const LoadedModule two(folder.Put(L"titled.dll", L"Dos.dll"));
        EXPECT_EQ(Which(), L"another one") << "the newest module's";
    }
    EXPECT_EQ(Which(), L"the right one");
}

TEST(LanguageModule, ApplicationHasOneToo) {
    const TemporaryFolder folder;
    folder.Put(L"language_right.dll", L"AnwendungLOC.dll");
    const std::wstring file = folder.Put(L"probe.dll", L"Anwendung.dll");
    const HMODULE module = ::LoadLibraryEx(file.c_str(), nullptr, DONT_RESOLVE_DLL_REFERENCES);
    ASSERT_TRUE(module);
    {
        AFX_MODULE_STATE application(FALSE, &AfxWndProc);
        AFX_MANAGE_STATE(&application);
        ASSERT_TRUE(AfxWinInit(module, nullptr, nullptr, 0));
        EXPECT_EQ(Which(), L"the right one");
        EXPECT_EQ(Found(ID_ANYWHERE), module);
        AfxWinTerm();
        EXPECT_EQ(Which(), L"");
    }
    ::FreeLibrary(module);
}
