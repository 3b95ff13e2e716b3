// The application object: what it is called, where it keeps its settings, how it helps and what it
// tells the user.
#include "TestApp.h"
#include "TestResource.h"
#include "afxres.h"
#include "kit/kit.h"
#include "modules/ModuleFiles.h"
#include "modules/ModuleResource.h"

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <optional>

namespace {

/// An application that shows what it is asked for, and its protected operations.
class PlainApp : public CWinApp {
public:
    using CWinApp::CWinApp;
    using CWinApp::SetRegistryKey;

    std::vector<std::string> calls;
    UINT promptContext = 77;
    bool showsBoxes = true;

    int DoMessageBox(LPCTSTR text, UINT type, UINT context) override {
        promptContext = context;
        return showsBoxes ? CWinApp::DoMessageBox(text, type, context) : IDOK;
    }
    void WinHelp(DWORD_PTR data, UINT command) override { Called("WinHelp", data, command); }

protected:
    void Called(const char* what, DWORD_PTR data, UINT command) {
        calls.push_back(std::string(what) + " " + std::to_string(data) + " " +
                        std::to_string(command));
    }
};

/// The same with its HTML help written down.
class HelpedApp : public PlainApp {
public:
    using PlainApp::PlainApp;
    void HtmlHelp(DWORD_PTR data, UINT command) override { Called("HtmlHelp", data, command); }
};

/// An application of its own beside the test program's: a state and an application object,
/// current for the length of a scope.
template <class App = PlainApp>
class Application {
public:
    explicit Application(const wchar_t* name = L"Plain") : m_current(&m_state), app(name) {}

    void Start() {
        ASSERT_TRUE(AfxWinInit(::GetModuleHandle(nullptr), nullptr, m_commandLine, SW_HIDE));
    }

private:
    AFX_MODULE_STATE m_state{FALSE, AfxGetAppModuleState()->m_pfnAfxWndProc};
    AFX_MAINTAIN_STATE m_current;
    wchar_t m_commandLine[5] = L"/now";

public:
    App app;
};

std::filesystem::path ProgramPath() {
    wchar_t path[MAX_PATH];
    ::GetModuleFileName(nullptr, path, MAX_PATH);
    return path;
}

void SetName(LPCTSTR& name, const std::wstring& text) {
    std::free(const_cast<LPTSTR>(name));
    name = ::_wcsdup(text.c_str());
}

} // namespace

// ---- Names

TEST(AppNames, ComeFromTheConstructorAndTheFile) {
    Application<> application(L"Terrain");
    EXPECT_EQ(AfxGetApp(), &application.app);
    application.Start();
    const CWinApp& app = application.app;
    std::filesystem::path path = ProgramPath();
    EXPECT_STREQ(app.m_pszAppName, L"Terrain");
    EXPECT_EQ(app.m_pszExeName, path.stem().native());
    EXPECT_EQ(app.m_pszProfileName, path.stem().native() + L".INI");
    EXPECT_EQ(app.m_pszHelpFilePath, path.replace_extension(L"HLP").native());
    EXPECT_EQ(app.m_hInstance, ::GetModuleHandle(nullptr));
    EXPECT_STREQ(app.m_lpCmdLine, L"/now");
    EXPECT_EQ(app.m_nCmdShow, SW_HIDE);
}

TEST(AppNames, ModuleWithoutATitleIsCalledAfterItsFile) {
    const LoadedModule titled(L"titled.dll"); // its title is in the chain
    const LoadedModule probe(L"probe.dll");
    EXPECT_STREQ(probe.Call<CWinApp*>("ProbeApplication")->m_pszAppName, L"probe");
}

TEST(AppNames, TitleOfTheModulesOwnResourcesComesBeforeItsFiles) {
    const LoadedModule titled(L"titled.dll");
    const auto* const app = titled.Call<CWinApp*>("TitledApplication");
    EXPECT_STREQ(app->m_pszAppName, L"Module with a title");
    EXPECT_STREQ(app->m_pszExeName, L"titled");
    EXPECT_STREQ(app->m_pszProfileName, L"titled.INI");
}

TEST(AppNames, GivenBeforeTheStartStay) {
    Application<> application;
    SetName(application.app.m_pszProfileName, L"given.ini");
    SetName(application.app.m_pszHelpFilePath, L"given.chm");
    application.Start();
    EXPECT_STREQ(application.app.m_pszProfileName, L"given.ini");
    EXPECT_STREQ(application.app.m_pszHelpFilePath, L"given.chm");
}

TEST(AppNames, NameMayBeReplaced) {
    Application<> application(L"Before");
    application.Start();
    EXPECT_STREQ(AfxGetAppName(), L"Before");
    SetName(application.app.m_pszAppName, L"Afterwards");
    EXPECT_STREQ(AfxGetAppName(), L"Afterwards");
}

TEST(AppNames, PreviousInstanceIsNone) {
    const Application<> application;
    const HINSTANCE program = ::GetModuleHandle(nullptr);
    EXPECT_FALSE(AfxWinInit(program, program, nullptr, 0));
}

TEST(AppNames, HandlesGoAtTheEnd) {
    Application<> application;
    application.Start();
    EXPECT_EQ(AfxGetInstanceHandle(), ::GetModuleHandle(nullptr));
    AfxWinTerm();
    EXPECT_EQ(AfxGetInstanceHandle(), nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), nullptr);
}

TEST(AppNames, ApplicationObjectThatGoesLeavesNone) {
    AFX_MODULE_STATE state(FALSE, &AfxWndProc);
    AFX_MANAGE_STATE(&state);
    {
        const CWinApp app(L"Passing");
        EXPECT_EQ(AfxGetApp(), &app);
    }
    EXPECT_EQ(AfxGetApp(), nullptr);
    EXPECT_EQ(AfxGetAppName(), nullptr);
}

// ---- Profile

namespace {

/// The profile's two places.
enum class Place { file, registry };

void PrintTo(Place place, std::ostream* out) {
    *out << (place == Place::file ? "file" : "registry");
}

/// An application whose profile is nobody else's: a file in a folder of the test, or the
/// registry below a key that stands in for the user's.
class Profile : public testing::TestWithParam<Place> {
protected:
    void SetUp() override {
        m_application.Start();
        if (GetParam() == Place::file)
            UseFile();
        else
            UseRegistry();
    }
    void TearDown() override {
        if (!m_key)
            return;
        ::RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        ::RegCloseKey(m_key);
        EXPECT_EQ(::RegDeleteTree(HKEY_CURRENT_USER, m_keyName.c_str()), ERROR_SUCCESS);
    }

    PlainApp& app() { return m_application.app; }
    std::wstring file() const { return (m_folder.path() / L"profile.ini").native(); }
    int Number(LPCTSTR entry, int fallback) {
        return static_cast<int>(app().GetProfileInt(L"Section", entry, fallback));
    }
    std::wstring Text(LPCTSTR entry, LPCTSTR fallback = nullptr) {
        return app().GetProfileString(L"Section", entry, fallback).GetString();
    }

private:
    void UseFile() { SetName(app().m_pszProfileName, file()); }
    void UseRegistry() {
        m_keyName = L"Software\\framework-test-" + std::to_wstring(::GetCurrentProcessId());
        ASSERT_EQ(::RegCreateKeyEx(HKEY_CURRENT_USER, m_keyName.c_str(), 0, nullptr,
                                   REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr, &m_key,
                                   nullptr),
                  ERROR_SUCCESS);
        ASSERT_EQ(::RegOverridePredefKey(HKEY_CURRENT_USER, m_key), ERROR_SUCCESS);
        app().SetRegistryKey(L"Company");
    }

    TemporaryFolder m_folder;
    Application<> m_application;
    std::wstring m_keyName;
    HKEY m_key = nullptr;
};

class ProfileFile : public Profile {};
class ProfileRegistry : public Profile {};

const auto nameOfPlace = [](const auto& info) {
    return std::string(info.param == Place::file ? "file" : "registry");
};
INSTANTIATE_TEST_SUITE_P(In, Profile, testing::Values(Place::file, Place::registry), nameOfPlace);
INSTANTIATE_TEST_SUITE_P(In, ProfileFile, testing::Values(Place::file), nameOfPlace);
INSTANTIATE_TEST_SUITE_P(In, ProfileRegistry, testing::Values(Place::registry), nameOfPlace);

} // namespace

TEST_P(Profile, NumbersComeBack) {
    for (const int number : {0, 1, -1, -9999, 31, INT_MAX, INT_MIN}) {
        EXPECT_TRUE(app().WriteProfileInt(L"Section", L"Huso", number));
        EXPECT_EQ(Number(L"Huso", 5), number);
    }
}

TEST_P(Profile, MissingNumberIsTheDefault) {
    EXPECT_EQ(Number(L"Missing", 30), 30);
    EXPECT_EQ(Number(L"Missing", -9999), -9999);
    EXPECT_TRUE(app().WriteProfileInt(L"Section", L"Huso", 1));
    EXPECT_EQ(Number(L"Missing", -3), -3);
    EXPECT_EQ(app().GetProfileInt(L"Other section", L"Huso", 7), 7U);
}

TEST_P(Profile, TextThatIsNoNumberIsZero) {
    EXPECT_TRUE(app().WriteProfileString(L"Section", L"Huso", L"north"));
    EXPECT_EQ(Number(L"Huso", 30), 0);
}

TEST_P(Profile, TextsComeBack) {
    const std::wstring longText(1000, L'x');
    const std::wstring veryLongText(5000, L'y');
    for (const std::wstring& text :
         {std::wstring(L"C:\\data\\map.tif"), std::wstring(L"a; b = c [d]"), std::wstring(L"1"),
          std::wstring(), std::wstring(L"Se\u00F1al"), std::wstring(259, L'a'),
          std::wstring(260, L'b'), std::wstring(261, L'c'), longText, veryLongText}) {
        EXPECT_TRUE(app().WriteProfileString(L"Section", L"Path", text.c_str()));
        EXPECT_EQ(Text(L"Path", L"default"), text);
    }
}

TEST_P(Profile, MissingTextIsTheDefault) {
    EXPECT_EQ(Text(L"Missing", L"default"), L"default");
    EXPECT_EQ(Text(L"Missing", L""), L"");
    EXPECT_EQ(Text(L"Missing"), L"");
    const std::wstring longDefault(600, L'd');
    EXPECT_EQ(Text(L"Missing", longDefault.c_str()), longDefault);
}

TEST_P(Profile, NamesAreNotCaseSensitive) {
    EXPECT_TRUE(app().WriteProfileInt(L"Section", L"Huso", 30));
    EXPECT_EQ(app().GetProfileInt(L"SECTION", L"huso", 0), 30U);
    EXPECT_TRUE(app().WriteProfileString(L"section", L"HUSO", L"31"));
    EXPECT_EQ(app().GetProfileString(L"Section", L"Huso"), L"31");
}

TEST_P(Profile, NullTextTakesTheEntryOut) {
    EXPECT_TRUE(app().WriteProfileInt(L"Section", L"Huso", 30));
    EXPECT_TRUE(app().WriteProfileInt(L"Section", L"Razon", 4));
    EXPECT_TRUE(app().WriteProfileString(L"Section", L"Huso", nullptr));
    EXPECT_EQ(Number(L"Huso", -1), -1);
    EXPECT_EQ(Number(L"Razon", -1), 4);
}

TEST_P(Profile, NullEntryTakesTheSectionOut) {
    EXPECT_TRUE(app().WriteProfileInt(L"Section", L"Huso", 30));
    EXPECT_TRUE(app().WriteProfileInt(L"Other", L"Huso", 31));
    EXPECT_TRUE(app().WriteProfileString(L"Section", nullptr, nullptr));
    EXPECT_EQ(Number(L"Huso", -1), -1);
    EXPECT_EQ(app().GetProfileInt(L"Other", L"Huso", 0), 31U);
}

TEST_P(Profile, BytesComeBack) {
    BYTE bytes[] = {0x00, 0x0F, 0xA5, 0xFF, 0x30};
    EXPECT_TRUE(app().WriteProfileBinary(L"Section", L"Bytes", bytes, sizeof bytes));
    BYTE* read = nullptr;
    UINT count = 0;
    ASSERT_TRUE(app().GetProfileBinary(L"Section", L"Bytes", &read, &count));
    const std::unique_ptr<BYTE[]> owner(read);
    EXPECT_EQ(std::vector<BYTE>(read, read + count), std::vector<BYTE>(bytes, std::end(bytes)));

    EXPECT_FALSE(app().GetProfileBinary(L"Section", L"Missing", &read, &count));
    EXPECT_EQ(read, nullptr);
    EXPECT_EQ(count, 0U);
}

TEST_P(ProfileFile, NumberMayBeHexadecimal) {
    EXPECT_TRUE(app().WriteProfileString(L"Section", L"Flags", L"0x10"));
    EXPECT_EQ(Number(L"Flags", 5), 16);
}

TEST_P(ProfileFile, NumberEndsWhereItsDigitsEnd) {
    EXPECT_TRUE(app().WriteProfileString(L"Section", L"Size", L"12 points"));
    EXPECT_EQ(Number(L"Size", 5), 12);
}

TEST_P(ProfileFile, IsTheNamedFile) {
    EXPECT_TRUE(app().WriteProfileInt(L"Section", L"Huso", -30));
    wchar_t text[20];
    ::GetPrivateProfileString(L"Section", L"Huso", L"", text, 20, file().c_str());
    EXPECT_STREQ(text, L"-30");
}

TEST_P(ProfileFile, HoldsEveryCharacterWhereItBeganAsUnicode) {
    std::ofstream(std::filesystem::path(file()), std::ios::binary) << "\xFF\xFE";
    const std::wstring text = L"\u0421\u0435\u0432\u0435\u0440 \u4E2D \u00F1";
    EXPECT_TRUE(app().WriteProfileString(L"Section", L"Name", text.c_str()));
    EXPECT_EQ(Text(L"Name"), text);
}

TEST_P(ProfileRegistry, HoldsEveryCharacter) {
    const std::wstring text = L"\u0421\u0435\u0432\u0435\u0440 \u4E2D \u00F1";
    EXPECT_TRUE(app().WriteProfileString(L"\u4E2D", text.c_str(), text.c_str()));
    EXPECT_EQ(app().GetProfileString(L"\u4E2D", text.c_str()), text.c_str());
}

TEST_P(ProfileRegistry, IsBelowCompanyAndApplication) {
    EXPECT_STREQ(app().m_pszRegistryKey, L"Company");
    EXPECT_STREQ(app().m_pszProfileName, L"Plain");
    EXPECT_TRUE(app().WriteProfileInt(L"Section", L"Huso", -30));
    DWORD number = 0;
    DWORD bytes = sizeof number;
    EXPECT_EQ(::RegGetValue(HKEY_CURRENT_USER, L"Software\\Company\\Plain\\Section", L"Huso",
                            RRF_RT_REG_DWORD, nullptr, &number, &bytes),
              ERROR_SUCCESS);
    EXPECT_EQ(static_cast<int>(number), -30);

    const HKEY key = app().GetAppRegistryKey();
    ASSERT_NE(key, nullptr);
    const HKEY section = app().GetSectionKey(L"Section");
    ASSERT_NE(section, nullptr);
    EXPECT_EQ(::RegGetValue(key, L"Section", L"Huso", RRF_RT_REG_DWORD, nullptr, &number, &bytes),
              ERROR_SUCCESS);
    ::RegCloseKey(section);
    ::RegCloseKey(key);
}

TEST_P(ProfileRegistry, CompanyMayBeAResource) {
    app().SetRegistryKey(IDS_OF_PROGRAM);
    EXPECT_STREQ(app().m_pszRegistryKey, L"Of the program");
}

TEST(ProfileWithoutRegistry, HasNoKeys) {
    Application<> application;
    application.Start();
    EXPECT_EQ(application.app.GetAppRegistryKey(), nullptr);
    EXPECT_EQ(application.app.GetSectionKey(L"Section"), nullptr);
}

// ---- Help

namespace {

struct HelpCall {
    HWND caller;
    std::wstring file;
    UINT command;
    DWORD_PTR data;
};
std::optional<HelpCall> helpCall;

HWND WINAPI HelpViewer(HWND caller, LPCTSTR file, UINT command, DWORD_PTR data) {
    helpCall = HelpCall{caller, file, command, data};
    return ::GetDesktopWindow(); // any window: it was opened
}

HWND WINAPI BrokenHelpViewer(HWND, LPCTSTR, UINT, DWORD_PTR) {
    return nullptr;
}

class AppHelp : public testing::Test {
protected:
    void SetUp() override { helpCall.reset(); }
    void TearDown() override { afx_internal::SetHtmlHelpFunction(nullptr); }
};

} // namespace

TEST_F(AppHelp, IsTheOlderKindUntilHtmlHelpIsEnabled) {
    Application<HelpedApp> application;
    application.Start();
    HelpedApp& app = application.app;
    std::filesystem::path path = ProgramPath();
    EXPECT_EQ(app.m_eHelpType, afxWinHelp);
    app.ShowHelp(150083);
    app.EnableHtmlHelp();
    EXPECT_EQ(app.m_eHelpType, afxHTMLHelp);
    EXPECT_EQ(app.GetHelpMode(), afxHTMLHelp);
    EXPECT_EQ(app.m_pszHelpFilePath, path.replace_extension(L"CHM").native());
    app.ShowHelp(150083);
    app.ShowHelp(7, HELP_QUIT);
    app.SetHelpMode(afxWinHelp);
    EXPECT_EQ(app.m_pszHelpFilePath, path.replace_extension(L"HLP").native());
    app.ShowHelp(1, HELP_FINDER);
    EXPECT_EQ(app.calls, (std::vector<std::string>{"WinHelp 150083 1", "HtmlHelp 150083 15",
                                                   "HtmlHelp 7 2", "WinHelp 1 11"}));
}

TEST_F(AppHelp, KindChosenBeforeTheStartNamesTheFile) {
    Application<> application;
    application.app.EnableHtmlHelp();
    application.Start();
    EXPECT_EQ(application.app.m_pszHelpFilePath, ProgramPath().replace_extension(L"CHM").native());
}

TEST_F(AppHelp, HtmlHelpOpensTheFileAtTheContext) {
    Application<> application;
    application.app.EnableHtmlHelp();
    application.Start();
    afx_internal::SetHtmlHelpFunction(&HelpViewer);
    application.app.HtmlHelp(150083);
    ASSERT_TRUE(helpCall);
    EXPECT_EQ(helpCall->file, application.app.m_pszHelpFilePath);
    EXPECT_EQ(helpCall->command, 15U) << "HH_HELP_CONTEXT, where no command is named";
    EXPECT_EQ(helpCall->data, 150083U);

    application.app.HtmlHelp(3, 1);
    EXPECT_EQ(helpCall->command, 1U);
    EXPECT_EQ(helpCall->data, 3U);
}

TEST_F(AppHelp, ViewerBelongsToTheMainWindow) {
    Application<> application;
    application.Start();
    CWnd main;
    ASSERT_TRUE(main.CreateEx(0, nullptr, L"Main", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    application.app.m_pMainWnd = &main;
    afx_internal::SetHtmlHelpFunction(&HelpViewer);
    application.app.HtmlHelp(1);
    ASSERT_TRUE(helpCall);
    EXPECT_EQ(helpCall->caller, main.m_hWnd);
    application.app.m_pMainWnd = nullptr;
    main.DestroyWindow();
}

TEST_F(AppHelp, ThatCannotBeOpenedIsReported) {
    Application<> application(L"Terrain");
    application.Start();
    const auto before = afx_internal::SetHtmlHelpFunction(&BrokenHelpViewer);
    ASSERT_NE(before, nullptr);
    kit::Script script;
    script.expectMessage(L"Terrain", L"The help could not be opened.", MB_ICONEXCLAMATION)
        .buttons(MB_OK);
    script.run([&] { application.app.HtmlHelp(150083); });
    EXPECT_EQ(application.app.promptContext, static_cast<UINT>(AFX_IDP_FAILED_TO_LAUNCH_HELP));
}

// ---- Message boxes

namespace {

/// OK asks first.
class AskingDialog : public CDialog {
public:
    AskingDialog() : CDialog(IDD_INNER) {}
    void OnOK() override {
        if (AfxMessageBox(L"Sure?", MB_YESNO) == IDYES)
            CDialog::OnOK();
    }
};

} // namespace

TEST(AppMessageBox, HasTheApplicationsNameAndTheExclamationMark) {
    Application<> application(L"Terrain");
    application.Start();
    kit::Script script;
    script.expectMessage(L"Terrain", L"First\nsecond line", MB_ICONEXCLAMATION).buttons(MB_OK);
    EXPECT_EQ(script.run([] { return AfxMessageBox(L"First\nsecond line"); }), IDOK);
}

TEST(AppMessageBox, KeepsButtonsAndIconThatAreNamed) {
    Application<> application(L"Terrain");
    application.Start();
    kit::Script script;
    script.expectMessage(L"Terrain", L"Delete it?", MB_ICONQUESTION)
        .buttons(MB_YESNOCANCEL)
        .defaultButton(IDNO)
        .answer(IDNO);
    script.expectMessage(L"Terrain", L"Delete it?", MB_ICONEXCLAMATION)
        .buttons(MB_YESNO)
        .answer(IDYES);
    script.expectMessage(L"Terrain", L"Gone.", MB_ICONINFORMATION);
    script.run([] {
        EXPECT_EQ(AfxMessageBox(L"Delete it?", MB_YESNOCANCEL | MB_ICONQUESTION | MB_DEFBUTTON2),
                  IDNO);
        EXPECT_EQ(AfxMessageBox(L"Delete it?", MB_YESNO), IDYES);
        EXPECT_EQ(AfxMessageBox(L"Gone.", MB_ICONINFORMATION), IDOK);
    });
}

TEST(AppMessageBox, TextMayBeAResource) {
    Application<> application(L"Terrain");
    application.Start();
    kit::Script script;
    script.expectMessage(L"Terrain", L"Of the program", MB_ICONEXCLAMATION)
        .buttons(MB_OKCANCEL)
        .answer(IDCANCEL);
    EXPECT_EQ(script.run([] { return AfxMessageBox(IDS_OF_PROGRAM, MB_OKCANCEL); }), IDCANCEL);
}

TEST(AppMessageBox, HelpContextIsTheResourcesNumberUnlessOneIsGiven) {
    Application<> application;
    application.app.showsBoxes = false;
    AfxMessageBox(L"Text");
    EXPECT_EQ(application.app.promptContext, 0U);
    AfxMessageBox(L"Text", MB_OK, 5);
    EXPECT_EQ(application.app.promptContext, 5U);
    AfxMessageBox(IDS_OF_PROGRAM);
    EXPECT_EQ(application.app.promptContext, static_cast<UINT>(IDS_OF_PROGRAM));
    AfxMessageBox(IDS_OF_PROGRAM, MB_OK, 6);
    EXPECT_EQ(application.app.promptContext, 6U);
}

TEST(AppMessageBox, HelpKeyOpensTheHelpOfTheMessage) {
    Application<HelpedApp> application;
    application.app.EnableHtmlHelp();
    application.Start();
    kit::Script script;
    const auto askForHelp = [](kit::MessageDialog&) { kit::keyboard::press(VK_F1); };
    for (int box = 0; box < 3; ++box)
        script.expectMessage().inspect(askForHelp);
    script.run([] {
        AfxMessageBox(IDS_OF_PROGRAM);
        AfxMessageBox(L"Text", MB_OK, 5);
        AfxMessageBox(L"Text without help");
    });
    EXPECT_EQ(
        application.app.calls,
        (std::vector<std::string>{"HtmlHelp " + std::to_string(0x30000 + IDS_OF_PROGRAM) + " 15",
                                  "HtmlHelp " + std::to_string(0x30000 + 5) + " 15"}));
}

TEST(AppMessageBox, HelpKeyDoesNotReachTheDialogBelow) {
    AskingDialog dialog;
    theApp.helps.clear();
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.press(IDOK);
        d.press(IDCANCEL);
    });
    script.expectMessage()
        .inspect([](kit::MessageDialog&) { kit::keyboard::press(VK_F1); })
        .answer(IDNO);
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
    EXPECT_EQ(theApp.helps, std::vector<TestApp::Help>{});
}

TEST(AppMessageBox, ComesWithoutAnApplicationToo) {
    AFX_MODULE_STATE state(FALSE, &AfxWndProc);
    AFX_MANAGE_STATE(&state);
    kit::Script script;
    script.expectMessage(L"Error", L"Nobody's message", MB_ICONEXCLAMATION);
    EXPECT_EQ(script.run([] { return AfxMessageBox(L"Nobody's message"); }), IDOK);
}

TEST(AppMessageBox, BelongsToTheOpenDialog) {
    AskingDialog dialog;
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.focusOn(IDC_NAME);
        d.press(IDOK);
        EXPECT_TRUE(::IsWindowEnabled(d.handle()));
        d.press(IDOK);
    });
    script.expectMessage(L"Framework tests", L"Sure?", MB_ICONEXCLAMATION)
        .buttons(MB_YESNO)
        .ownedByDialog()
        .inspect([](kit::MessageDialog& box) { EXPECT_FALSE(::IsWindowEnabled(box.owner())); })
        .answer(IDNO);
    script.expectMessage(L"Framework tests", L"Sure?", MB_ICONEXCLAMATION)
        .ownedByDialog()
        .answer(IDYES);
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
}

TEST(AppMessageBox, DisablesTheMainWindowBelowAnOpenPalette) {
    CWnd main;
    CWnd palette;
    ASSERT_TRUE(main.CreateEx(0, nullptr, L"Main", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100, nullptr,
                              nullptr));
    ASSERT_TRUE(palette.CreateEx(0, nullptr, L"Palette", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                                 main.m_hWnd, nullptr));
    palette.SetActiveWindow();
    theApp.m_pMainWnd = &main;
    kit::Script script;
    script.expectMessage(L"Framework tests", L"Done.", MB_ICONEXCLAMATION)
        .inspect([&](kit::MessageDialog& box) {
            EXPECT_EQ(box.owner(), palette.m_hWnd);
            EXPECT_FALSE(palette.IsWindowEnabled());
            EXPECT_FALSE(main.IsWindowEnabled());
        });
    EXPECT_EQ(script.run([] { return AfxMessageBox(L"Done."); }), IDOK);
    EXPECT_TRUE(palette.IsWindowEnabled());
    EXPECT_TRUE(main.IsWindowEnabled());
    main.DestroyWindow();
    EXPECT_EQ(theApp.m_pMainWnd, nullptr);
}

// ---- Wait cursor

TEST(AppWaitCursor, IsThereAsLongAsSomebodyWaits) {
    const HCURSOR arrow = ::LoadCursor(nullptr, IDC_ARROW);
    const HCURSOR wait = ::LoadCursor(nullptr, IDC_WAIT);
    ::SetCursor(arrow);
    {
        CWaitCursor outer;
        EXPECT_EQ(::GetCursor(), wait);
        {
            const CWaitCursor inner;
            EXPECT_EQ(::GetCursor(), wait);
        }
        EXPECT_EQ(::GetCursor(), wait);
        ::SetCursor(arrow); // as a message box does
        outer.Restore();
        EXPECT_EQ(::GetCursor(), wait);
    }
    EXPECT_EQ(::GetCursor(), arrow);
    theApp.RestoreWaitCursor(); // nobody waits
    EXPECT_EQ(::GetCursor(), arrow);
    theApp.EndWaitCursor(); // one too many
    EXPECT_EQ(::GetCursor(), arrow);
    theApp.BeginWaitCursor();
    EXPECT_EQ(::GetCursor(), wait);
    theApp.EndWaitCursor();
    EXPECT_EQ(::GetCursor(), arrow);
}

// ---- Resources

TEST(AppResources, ComeFromTheSystem) {
    EXPECT_EQ(theApp.LoadStandardCursor(IDC_WAIT), ::LoadCursor(nullptr, IDC_WAIT));
    EXPECT_EQ(theApp.LoadStandardIcon(IDI_WARNING), ::LoadIcon(nullptr, IDI_WARNING));
}
