// A host loads the library when it needs it and lets it go: nothing of the host changes, and while
// the library is loaded its templates, texts and icons are found. Its dialogs run as if they were
// the host's own. These tests run for an English user and, once more, for a German one, whose
// language the library has no file for.
#include "AddIn.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/StringIds.h"
#include "cuadros/resources/TriangulationIds.h"
#include "framework/modules/FailingStart.h"
#include "framework/modules/ModuleFiles.h"
#include "kit/app/RecordingApp.h"
#include "kit/kit.h"

#include <afxwin.h>

#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Cotana::CDataTriangulacion;
using Cotana::CElementoDigiTab;

const wchar_t* const Library = L"Cuadros.dll";

HINSTANCE Found(UINT number, LPCTSTR type) {
    return AfxFindResourceHandle(MAKEINTRESOURCE(number), type);
}

std::wstring Text(UINT number) {
    CString text;
    text.LoadString(number);
    return text.GetString();
}

void ExpectNothingOfTheLibrary() {
    EXPECT_EQ(::GetModuleHandle(Library), nullptr);
    EXPECT_EQ(Found(IDD_TRIANGULACION, RT_DIALOG), nullptr);
    EXPECT_EQ(Found(IDI_TRIANGULACION, RT_GROUP_ICON), nullptr);
    EXPECT_EQ(Found(IDI_PERFILES, RT_GROUP_ICON), nullptr);
    EXPECT_EQ(Text(IDS_TITULO_MENSAJES), L"");
}

void ExpectAllOfTheLibrary() {
    const HMODULE library = ::GetModuleHandle(Library);
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(Found(IDI_TRIANGULACION, RT_GROUP_ICON), library);
    const HINSTANCE language = Found(IDD_TRIANGULACION, RT_DIALOG);
    EXPECT_NE(language, nullptr);
    EXPECT_NE(language, library) << "templates are the language file's";
    EXPECT_EQ(Found(IDI_PERFILES, RT_GROUP_ICON), language);
    EXPECT_NE(Text(IDS_TITULO_MENSAJES), L"");
}

/// After each test the host is as it was before.
class LibraryTest : public testing::Test {
    void SetUp() override { ExpectNothingOfTheLibrary(); }
    void TearDown() override {
        EXPECT_EQ(AfxGetModuleState(), AfxGetAppModuleState());
        EXPECT_EQ(AfxGetApp(), &kit::app);
        ExpectNothingOfTheLibrary();
    }
};

using LibraryLoad = LibraryTest;
using LibraryDialog = LibraryTest;

} // namespace

TEST_F(LibraryLoad, TestsRunForTheUserThatTheyAreMeantFor) {
    const char* const locale = std::getenv("CUADROS_LOCALE");
    const bool german = locale && std::string_view(locale).starts_with("de_DE");
    EXPECT_EQ(::GetUserDefaultUILanguage(), german ? 0x407 : 0x409);
}

TEST_F(LibraryLoad, TwiceInOneProcess) {
    for (int round = 1; round <= 2; ++round) {
        LoadedModule library(Library);
        ASSERT_TRUE(library.handle()) << "error " << library.error() << " in round " << round;
        EXPECT_EQ(AfxGetModuleState(), AfxGetAppModuleState());
        EXPECT_EQ(AfxGetApp(), &kit::app);
        EXPECT_STREQ(AfxGetAppName(), L"Host application");
        ExpectAllOfTheLibrary();
        library.Free();
        ExpectNothingOfTheLibrary();
    }
}

TEST_F(LibraryLoad, LeavesTheStateThatIsCurrent) {
    AFX_MODULE_STATE another(TRUE, &AfxWndProc);
    AFX_MANAGE_STATE(&another);
    LoadedModule library(Library);
    EXPECT_EQ(AfxGetModuleState(), &another);
    ExpectAllOfTheLibrary();
    library.Free();
    EXPECT_EQ(AfxGetModuleState(), &another);
}

TEST_F(LibraryLoad, ThatFailsLeavesNothingBehind) {
    for (const auto step : {FailingStart::Step::winInit, FailingStart::Step::chainEntry}) {
        {
            const FailingStart fault(step);
            const LoadedModule failed(Library);
            EXPECT_EQ(failed.handle(), nullptr);
            EXPECT_EQ(failed.error(), static_cast<DWORD>(ERROR_DLL_INIT_FAILED));
            EXPECT_EQ(AfxGetModuleState(), AfxGetAppModuleState());
            ExpectNothingOfTheLibrary();
        }
        const LoadedModule library(Library);
        ExpectAllOfTheLibrary();
    }
}

TEST_F(LibraryLoad, BringsItsIcons) {
    const LoadedModule library(Library);
    for (const UINT icon : {IDI_PROYECCION, IDI_IMPORTAR_REJILLA, IDI_LIMPIAR_RELIEVE,
                            IDI_TRIANGULACION, IDI_CURVADO, IDI_HIPSOMETRICAS, IDI_ORIENTACIONES,
                            IDI_PENDIENTES, IDI_SOMBREADO, IDI_CURVA_HIPSOMETRICA})
        EXPECT_EQ(Found(icon, RT_GROUP_ICON), library.handle()) << icon;
    for (const UINT icon : {IDI_INFO_TRIANGULACION, IDI_PERFILES}) {
        EXPECT_NE(Found(icon, RT_GROUP_ICON), nullptr) << icon;
        EXPECT_NE(Found(icon, RT_GROUP_ICON), library.handle()) << icon;
    }
}

TEST_F(LibraryLoad, LanguageFileIsTheOneBesideTheLibrary) {
    // The test program's own folder has a language file, and so has the current one: they are not
    // the library's when the library lies elsewhere.
    const TemporaryFolder folder;
    const std::wstring file = folder.Put(Library, Library);
    {
        const LoadedModule library(file);
        ASSERT_TRUE(library.handle());
        EXPECT_EQ(Found(IDI_TRIANGULACION, RT_GROUP_ICON), library.handle());
        EXPECT_EQ(Found(IDD_TRIANGULACION, RT_DIALOG), nullptr);
        EXPECT_EQ(Text(IDS_TITULO_MENSAJES), L"");
    }
    for (const wchar_t* name : {L"CuadrosENU.dll", L"CuadrosLOC.dll"})
        folder.Put(name, name);
    const LoadedModule library(file);
    EXPECT_NE(Found(IDD_TRIANGULACION, RT_DIALOG), nullptr);
    EXPECT_NE(Text(IDS_TITULO_MENSAJES), L"");
}

TEST_F(LibraryLoad, FallbackServesEveryLanguage) {
    const TemporaryFolder folder;
    folder.Put(L"CuadrosLOC.dll", L"CuadrosLOC.dll");
    const LoadedModule library(folder.Put(Library, Library));
    EXPECT_NE(Found(IDD_TRIANGULACION, RT_DIALOG), nullptr);
    EXPECT_EQ(Text(IDS_COLUMNA_CODIGO), L"ID");
}

// ---- The dialog, in a part of the host that links the library

namespace {

struct Sight {
    std::string place;
    AFX_MODULE_STATE* state;
    CWinApp* app;
};
std::vector<Sight> sights;

void Watch(const char* place) {
    sights.push_back({place, AfxGetModuleState(), AfxGetApp()});
}

CDataTriangulacion Record() {
    CDataTriangulacion record;
    record.m_Codigos.Inserta(CElementoDigiTab(L"CN", L"Curva de nivel"), true);
    record.m_Codigos.Inserta(CElementoDigiTab(L"RO", L"Ruptura"), true);
    record.m_LimiteInferior = 0;
    record.m_LimiteSuperior = 100;
    record.m_DistanciaNoUnir = 1;
    record.m_Nombre = L"Norte";
    return record;
}

INT_PTR OpenDialog(const LoadedModule& addIn, CDataTriangulacion& record) {
    sights.clear();
    return reinterpret_cast<decltype(&OpenTriangulation)>(reinterpret_cast<void*>(
        ::GetProcAddress(addIn.handle(), "OpenTriangulation")))(record, &Watch);
}

} // namespace

TEST_F(LibraryDialog, RunsUnderTheHostsStateInEveryHandler) {
    for (int round = 1; round <= 2; ++round) {
        const LoadedModule addIn(L"add_in.dll");
        ASSERT_TRUE(addIn.handle()) << "error " << addIn.error() << " in round " << round;
        ExpectAllOfTheLibrary();
        CDataTriangulacion record = Record();
        kit::Script script;
        script.onDialog([](kit::Dialog& d) {
            d.press(IDC_TRIANGULACION_TODOS_CODIGOS);
            HELPINFO info = {};
            info.cbSize = sizeof info;
            EXPECT_TRUE(::SendMessage(d.handle(), WM_HELP, 0, reinterpret_cast<LPARAM>(&info)));
            d.press(IDOK);
        });
        EXPECT_EQ(script.run([&] { return OpenDialog(addIn, record); }), IDOK);
        EXPECT_EQ(record.m_CodigosRuptura.Cantidad(), 2U);

        std::vector<std::string> places;
        for (const Sight& sight : sights) {
            places.push_back(sight.place);
            EXPECT_EQ(sight.state, AfxGetAppModuleState()) << sight.place;
            EXPECT_EQ(sight.app, &kit::app) << sight.place;
        }
        EXPECT_EQ(places,
                  (std::vector<std::string>{"OnInitDialog", "OnTodosCods", "OnHelpInfo", "OnOK"}));
        // Help reached the host's application object.
        EXPECT_EQ(kit::app.takeHelpRequests(), (std::vector<kit::HelpRequest>{{150083, 15}}));
    }
}

TEST_F(LibraryDialog, BelongsToTheHostsWindowProcedure) {
    const LoadedModule addIn(L"add_in.dll");
    CDataTriangulacion record = Record();
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        CWnd* const dialog = CWnd::FromHandlePermanent(d.handle());
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->m_pModuleState, AfxGetAppModuleState());
        // It declares no run-time class of its own: it counts as its base class.
        EXPECT_EQ(dialog->GetRuntimeClass(), RUNTIME_CLASS(CDialog));
        d.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return OpenDialog(addIn, record); }), IDCANCEL);
}

TEST_F(LibraryDialog, HasItsTextsInTheUsersLanguageOrTheFallback) {
    const LoadedModule addIn(L"add_in.dll");
    CDataTriangulacion record = Record();
    record.m_Nombre.Empty();
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        EXPECT_EQ(d.caption(), L"Triangulation Options");
        d.press(IDOK);
        d.press(IDCANCEL);
    });
    script.expectMessage().inspect([](kit::MessageDialog& box) {
        EXPECT_EQ(box.caption(), Text(IDS_TITULO_MENSAJES));
        EXPECT_EQ(box.text(), Text(IDS_TEXTO_OBLIGATORIO));
        EXPECT_NE(box.text(), L"");
    });
    EXPECT_EQ(script.run([&] { return OpenDialog(addIn, record); }), IDCANCEL);
}
