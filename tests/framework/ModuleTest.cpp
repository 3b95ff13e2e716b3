// Modules: a regular DLL comes and goes under a state of its own, and the program goes on under
// its own as if nothing had happened. Each window gets its messages under the state that it was
// made under.
#include "TestApp.h"
#include "kit/kit.h"
#include "modules/Diary.h"
#include "modules/FailingStart.h"
#include "modules/ModuleFiles.h"
#include "modules/ModuleResource.h"
#include "modules/ProbeWindow.h"
#include "modules/Program.h"

#include <memory>
#include <optional>
#include <stdexcept>
#include <thread>

namespace {

using Names = std::vector<std::string>;

HINSTANCE Found(UINT id) {
    return AfxFindResourceHandle(MAKEINTRESOURCE(id), RT_RCDATA);
}

/// Ends the test where the current state is not the one that it began with.
class ModuleTest : public testing::Test {
protected:
    void SetUp() override { TakeDiary(); }
    void TearDown() override {
        EXPECT_EQ(AfxGetModuleState(), AfxGetAppModuleState());
        EXPECT_EQ(AfxGetApp(), &theApp);
    }
};

using ModuleLoad = ModuleTest;
using ModuleState = ModuleTest;
using ModuleWindows = ModuleTest;

} // namespace

TEST_F(ModuleLoad, GoesThroughItsStepsAndBack) {
    {
        const LoadedModule probe(L"probe.dll");
        ASSERT_TRUE(probe.handle());
        EXPECT_EQ(Events(TakeDiary()),
                  (Names{"first object made", "last object made", "AfxCoreInitModule", "AfxWinInit",
                         "InitInstance", "AfxInitExtensionModule", "CDynLinkLibrary"}));
    }
    EXPECT_EQ(Events(TakeDiary()), (Names{"ExitInstance", "AfxWinTerm", "AfxTermExtensionModule",
                                          "last object destroyed", "first object destroyed"}));
}

TEST_F(ModuleLoad, OwnStateIsCurrentFromTheFirstObjectToTheLast) {
    LoadedModule probe(L"probe.dll");
    ASSERT_TRUE(probe.handle());
    auto* const state = probe.Call<AFX_MODULE_STATE*>("ProbeState");
    auto* const app = probe.Call<CWinApp*>("ProbeApplication");
    ASSERT_NE(state, AfxGetModuleState());
    EXPECT_TRUE(state->m_bDLL);
    EXPECT_EQ(state->m_pCurrentWinApp, app);
    EXPECT_EQ(state->m_hCurrentInstanceHandle, probe.handle());
    EXPECT_EQ(state->m_hCurrentResourceHandle, probe.handle());
    EXPECT_EQ(app->m_pModuleState, state);
    EXPECT_EQ(app->m_hInstance, probe.handle());
    EXPECT_STREQ(app->m_lpCmdLine, L"");
    probe.Free();

    const std::vector<DiaryEntry> diary = TakeDiary();
    ASSERT_EQ(diary.size(), 12U);
    for (const DiaryEntry& entry : diary) {
        EXPECT_EQ(entry.state, state) << entry;
        // The application object comes after the first object and goes before it.
        EXPECT_EQ(entry.app, entry.what.starts_with("first") ? nullptr : app) << entry;
    }
}

TEST_F(ModuleLoad, CallersStateIsBackAfterLoadAndUnload) {
    AFX_MODULE_STATE callers(TRUE, &AfxWndProc);
    AFX_MANAGE_STATE(&callers);
    LoadedModule probe(L"probe.dll");
    ASSERT_TRUE(probe.handle());
    EXPECT_EQ(AfxGetModuleState(), &callers);
    EXPECT_EQ(AfxGetApp(), nullptr);
    probe.Free();
    EXPECT_EQ(AfxGetModuleState(), &callers);
    EXPECT_EQ(Events(TakeDiary()).back(), "first object destroyed");
}

TEST_F(ModuleLoad, EveryTimeIsLikeTheFirst) {
    const auto eventsOfOneLoad = [] {
        LoadedModule(L"probe.dll").Free();
        return Events(TakeDiary());
    };
    const Names first = eventsOfOneLoad();
    EXPECT_EQ(first.size(), 12U);
    EXPECT_EQ(eventsOfOneLoad(), first);
    EXPECT_EQ(eventsOfOneLoad(), first);
}

TEST_F(ModuleLoad, SecondReferenceRunsNothing) {
    const LoadedModule probe(L"probe.dll");
    TakeDiary();
    {
        const LoadedModule again(L"probe.dll");
        EXPECT_EQ(again.handle(), probe.handle());
    }
    EXPECT_EQ(TakeDiary(), std::vector<DiaryEntry>{});
}

TEST_F(ModuleLoad, ModulesHaveStatesOfTheirOwn) {
    const LoadedModule probe(L"probe.dll");
    const LoadedModule titled(L"titled.dll");
    ASSERT_TRUE(titled.handle());
    const auto* const probeApp = probe.Call<CWinApp*>("ProbeApplication");
    const auto* const titledApp = titled.Call<CWinApp*>("TitledApplication");
    EXPECT_NE(probeApp->m_pModuleState, titledApp->m_pModuleState);
    EXPECT_EQ(titledApp->m_pModuleState->m_pCurrentWinApp, titledApp);
    EXPECT_EQ(titledApp->m_hInstance, titled.handle());
}

// ---- Loads that fail

namespace {

struct Failure {
    const char* name;
    std::optional<FailingStart::Step> step;
    const wchar_t* refusal; // how InitInstance refuses: it returns FALSE, or throws
    Names expected;         // between the making of the static objects and their end
};

void PrintTo(const Failure& failure, std::ostream* out) {
    *out << failure.name;
}

class FailingLoad : public ModuleTest, public testing::WithParamInterface<Failure> {
protected:
    void TearDown() override {
        Disarm();
        ModuleTest::TearDown();
    }
    void Arm() {
        if (GetParam().step)
            m_fault.emplace(*GetParam().step);
        ::SetEnvironmentVariable(L"PROBE_REFUSES", GetParam().refusal);
    }
    void Disarm() {
        m_fault.reset();
        ::SetEnvironmentVariable(L"PROBE_REFUSES", nullptr);
    }

private:
    std::optional<FailingStart> m_fault;
};

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    AtEachStep, FailingLoad,
    testing::Values(
        Failure{"AfxWinInit", FailingStart::Step::winInit, nullptr,
                {"AfxCoreInitModule", "AfxWinInit", "AfxWinTerm"}},
        Failure{"InitInstance", std::nullopt, L"FALSE",
                {"AfxCoreInitModule", "AfxWinInit", "InitInstance", "ExitInstance", "AfxWinTerm"}},
        Failure{"InitInstanceByException", std::nullopt, L"exception",
                {"AfxCoreInitModule", "AfxWinInit", "InitInstance", "exception deleted",
                 "ExitInstance", "AfxWinTerm"}},
        Failure{"InitInstanceByOtherException", std::nullopt, L"other exception",
                {"AfxCoreInitModule", "AfxWinInit", "InitInstance", "ExitInstance", "AfxWinTerm"}},
        Failure{"ChainEntry", FailingStart::Step::chainEntry, nullptr,
                {"AfxCoreInitModule", "AfxWinInit", "InitInstance", "AfxInitExtensionModule",
                 "CDynLinkLibrary", "exception deleted", "ExitInstance", "AfxWinTerm",
                 "AfxTermExtensionModule"}}),
    [](const auto& info) { return info.param.name; });
// clang-format on

} // namespace

TEST_P(FailingLoad, UndoesWhatWasBegun) {
    Arm();
    const LoadedModule probe(L"probe.dll");
    EXPECT_EQ(probe.handle(), nullptr);
    EXPECT_EQ(probe.error(), static_cast<DWORD>(ERROR_DLL_INIT_FAILED));
    EXPECT_EQ(::GetModuleHandle(L"probe.dll"), nullptr);

    Names expected = {"first object made", "last object made"};
    expected.insert(expected.end(), GetParam().expected.begin(), GetParam().expected.end());
    expected.insert(expected.end(), {"last object destroyed", "first object destroyed"});
    const std::vector<DiaryEntry> diary = TakeDiary();
    EXPECT_EQ(Events(diary), expected);
    for (const DiaryEntry& entry : diary) {
        EXPECT_EQ(entry.state, diary.front().state) << entry;
        EXPECT_NE(entry.state, AfxGetAppModuleState()) << entry;
    }
}

TEST_P(FailingLoad, LeavesTheCallersStateAndNothingInTheChain) {
    AFX_MODULE_STATE callers(TRUE, &AfxWndProc);
    AFX_MANAGE_STATE(&callers);
    Arm();
    EXPECT_EQ(LoadedModule(L"probe.dll").handle(), nullptr);
    EXPECT_EQ(AfxGetModuleState(), &callers);
    EXPECT_EQ(Found(ID_PROBE), nullptr);
    CString text;
    EXPECT_FALSE(text.LoadString(IDS_OF_PROBE));
}

TEST_P(FailingLoad, TheNextOneWorks) {
    Arm();
    EXPECT_EQ(LoadedModule(L"probe.dll").handle(), nullptr);
    Disarm();
    TakeDiary();

    LoadedModule probe(L"probe.dll");
    ASSERT_TRUE(probe.handle());
    EXPECT_EQ(Found(ID_PROBE), probe.handle());
    probe.Free();
    EXPECT_EQ(Found(ID_PROBE), nullptr);
    EXPECT_EQ(Events(TakeDiary()).size(), 12U);
}

// ---- Threads

TEST_F(ModuleLoad, ThreadEndsUnderTheModulesState) {
    const LoadedModule probe(L"probe.dll");
    auto* const state = probe.Call<AFX_MODULE_STATE*>("ProbeState");
    TakeDiary();
    AFX_MODULE_STATE* threadsState = nullptr;
    std::thread([&] { threadsState = AfxGetModuleState(); }).join();

    EXPECT_EQ(threadsState, AfxGetAppModuleState()) << "a thread begins under the application's";
    EXPECT_EQ(TakeDiary(),
              (std::vector<DiaryEntry>{{"AfxTermThread", state, state->m_pCurrentWinApp}}));
}

TEST_F(ModuleLoad, ThreadLeavesNothingBehind) {
    const LoadedModule titled(L"titled.dll");
    const auto runThreads = [] {
        for (int i = 0; i < 20; ++i)
            std::thread([] {
                EXPECT_EQ(CWnd::FromHandle(::GetDesktopWindow())->m_hWnd, ::GetDesktopWindow());
            }).join();
    };
    runThreads();
    const kit::HeapUse before = kit::HeapUse::now();
    runThreads();
    EXPECT_EQ(kit::HeapUse::now(), before);
}

TEST_F(ModuleState, IsTheThreadsOwn) {
    AFX_MODULE_STATE other(TRUE, &AfxWndProc);
    AFX_MODULE_STATE* afterwards = nullptr;
    std::thread([&] {
        AfxSetModuleState(&other);
        afterwards = AfxGetModuleState();
    }).join();
    EXPECT_EQ(afterwards, &other);
    EXPECT_EQ(AfxGetModuleState(), AfxGetAppModuleState());
}

// ---- Scopes

TEST_F(ModuleState, LastsAsLongAsTheScope) {
    AFX_MODULE_STATE outer(TRUE, &AfxWndProc);
    AFX_MODULE_STATE inner(TRUE, &AfxWndProc);
    {
        AFX_MANAGE_STATE(&outer);
        EXPECT_EQ(AfxGetModuleState(), &outer);
        {
            AFX_MANAGE_STATE(&inner);
            EXPECT_EQ(AfxGetModuleState(), &inner);
        }
        EXPECT_EQ(AfxGetModuleState(), &outer);
        try {
            AFX_MANAGE_STATE(&inner);
            throw std::runtime_error("leaves the scope");
        } catch (const std::runtime_error&) {
            EXPECT_EQ(AfxGetModuleState(), &outer);
        }
    }
    EXPECT_EQ(AfxGetModuleState(), AfxGetAppModuleState());
}

TEST_F(ModuleState, SettingItReturnsTheOneBefore) {
    AFX_MODULE_STATE other(TRUE, &AfxWndProc);
    EXPECT_EQ(AfxSetModuleState(&other), AfxGetAppModuleState());
    EXPECT_EQ(AfxSetModuleState(AfxGetAppModuleState()), &other);
}

TEST_F(ModuleState, ThatEndsWhileCurrentGivesWayToTheApplications) {
    {
        AFX_MODULE_STATE passing(TRUE, &AfxWndProc);
        AfxSetModuleState(&passing);
    }
    EXPECT_EQ(AfxGetModuleState(), AfxGetAppModuleState());
}

TEST_F(ModuleState, CommandTargetRemembersTheOneItWasMadeUnder) {
    const CCmdTarget ours;
    EXPECT_EQ(ours.m_pModuleState, AfxGetAppModuleState());
    AFX_MODULE_STATE other(TRUE, &AfxWndProc);
    AFX_MANAGE_STATE(&other);
    const CCmdTarget others;
    EXPECT_EQ(others.m_pModuleState, &other);
    EXPECT_EQ(ours.m_pModuleState, AfxGetAppModuleState());
}

TEST_F(ModuleState, HoldsTheHandlesOfItsModule) {
    AFX_MODULE_STATE other(TRUE, &AfxWndProc);
    const HINSTANCE program = AfxGetInstanceHandle();
    EXPECT_EQ(program, ::GetModuleHandle(nullptr));
    EXPECT_EQ(AfxGetResourceHandle(), program);
    {
        AFX_MANAGE_STATE(&other);
        EXPECT_EQ(AfxGetInstanceHandle(), nullptr);
        AfxSetResourceHandle(::GetModuleHandle(L"kernel32.dll"));
        EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandle(L"kernel32.dll"));
        EXPECT_EQ(AfxGetApp(), nullptr);
        EXPECT_EQ(AfxGetThread(), nullptr);
        EXPECT_EQ(AfxGetMainWnd(), nullptr);
        EXPECT_EQ(AfxGetAppName(), nullptr);
    }
    EXPECT_EQ(AfxGetResourceHandle(), program);
    EXPECT_EQ(AfxGetThread(), &theApp);
}

TEST_F(ModuleState, FirstApplicationObjectStaysTheModules) {
    const CWinApp second(L"Second");
    EXPECT_EQ(AfxGetApp(), &theApp);
}

// ---- Windows

TEST_F(ModuleWindows, GetTheirMessagesUnderTheStateTheyWereMadeUnder) {
    const LoadedModule probe(L"probe.dll");
    auto* const state = probe.Call<AFX_MODULE_STATE*>("ProbeState");
    auto* const app = probe.Call<CWinApp*>("ProbeApplication");
    const HWND modules = probe.Call<HWND>("ProbeOpenWindow");
    const HWND ours = (new ProbeWindow("program's window"))->Open();
    ASSERT_TRUE(modules);
    ASSERT_TRUE(ours);
    const DiaryEntry inModule{"module's window", state, app};
    const DiaryEntry inProgram{"program's window", AfxGetAppModuleState(), &theApp};

    TakeDiary();
    ::SendMessage(modules, WM_PROBE, 0, 0);
    EXPECT_EQ(AfxGetModuleState(), AfxGetAppModuleState());
    EXPECT_EQ(TakeDiary(), std::vector{inModule});

    ::SendMessage(ours, WM_PROBE, 0, 0);
    EXPECT_EQ(TakeDiary(), std::vector{inProgram});

    // One inside the other, both ways: each state is back when the inner message is done.
    ::SendMessage(modules, WM_PROBE, 0, reinterpret_cast<LPARAM>(ours));
    EXPECT_EQ(TakeDiary(), (std::vector{inModule, inProgram, inModule}));
    ::SendMessage(ours, WM_PROBE, 0, reinterpret_cast<LPARAM>(modules));
    EXPECT_EQ(TakeDiary(), (std::vector{inProgram, inModule, inProgram}));

    // And whatever is current when the message comes.
    {
        AFX_MANAGE_STATE(state);
        ::SendMessage(ours, WM_PROBE, 0, 0);
        EXPECT_EQ(AfxGetModuleState(), state);
    }
    EXPECT_EQ(TakeDiary(), std::vector{inProgram});
    ::DestroyWindow(modules);
    ::DestroyWindow(ours);
}

TEST_F(ModuleWindows, PostedMessageComesUnderTheModulesState) {
    const LoadedModule probe(L"probe.dll");
    auto* const state = probe.Call<AFX_MODULE_STATE*>("ProbeState");
    const HWND modules = probe.Call<HWND>("ProbeOpenWindow");
    TakeDiary();
    ::PostMessage(modules, WM_PROBE, 0, 0);
    MSG message;
    ASSERT_TRUE(::PeekMessage(&message, modules, WM_PROBE, WM_PROBE, PM_REMOVE));
    ::DispatchMessage(&message);
    EXPECT_EQ(TakeDiary(),
              (std::vector<DiaryEntry>{{"module's window", state, state->m_pCurrentWinApp}}));
    EXPECT_EQ(AfxGetModuleState(), AfxGetAppModuleState());
    ::DestroyWindow(modules);
}

TEST_F(ModuleWindows, HaveTheirModulesWindowProcedure) {
    const LoadedModule probe(L"probe.dll");
    auto* const state = probe.Call<AFX_MODULE_STATE*>("ProbeState");
    const HWND modules = probe.Call<HWND>("ProbeOpenWindow");
    const HWND ours = (new ProbeWindow("program's window"))->Open();
    const auto procedureOf = [](HWND window) {
        return reinterpret_cast<WNDPROC>(::GetWindowLongPtr(window, GWLP_WNDPROC));
    };
    EXPECT_EQ(procedureOf(modules), state->m_pfnAfxWndProc);
    EXPECT_EQ(procedureOf(ours), AfxGetAppModuleState()->m_pfnAfxWndProc);
    EXPECT_NE(state->m_pfnAfxWndProc, AfxGetAppModuleState()->m_pfnAfxWndProc);
    EXPECT_EQ(::SendMessage(modules, WM_QUERYAFXWNDPROC, 0, 0), 1);
    EXPECT_EQ(CWnd::FromHandlePermanent(modules)->m_pModuleState, state);
    ::DestroyWindow(modules);
    ::DestroyWindow(ours);
}
