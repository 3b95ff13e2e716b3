// Linked into each regular DLL: its module state, the window procedure of windows made under
// that state, and its entry point.
#include <afxwin.h>

#include <new>
#include <utility>

namespace {

LRESULT CALLBACK ModuleWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Made before and destroyed after all other static objects of the module, which therefore
// come and go under its state.
class ModuleState : public AFX_MODULE_STATE {
public:
    ModuleState() : AFX_MODULE_STATE(TRUE, &ModuleWndProc) {}
    ~ModuleState() {
        if (AfxGetModuleState() == this)
            AfxSetModuleState(m_callers);
    }
    void MakeCurrent() { m_callers = AfxSetModuleState(this); }
    void RestoreCallers() { AfxSetModuleState(m_callers); }

private:
    AFX_MODULE_STATE* m_callers = nullptr;
};

ModuleState& State() {
    static ModuleState state;
    return state;
}

AFX_EXTENSION_MODULE extensionModule;
bool started = false;

LRESULT CALLBACK ModuleWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return AfxWndProc(window, message, wParam, lParam);
}

// Offers the module's resources to the process. False when there is no memory for that.
bool AddToChain(HINSTANCE instance) {
    try {
        if (!AfxInitExtensionModule(extensionModule, instance))
            return false;
        new CDynLinkLibrary(extensionModule); // the chain owns it
        return true;
    } catch (CMemoryException* e) {
        e->Delete();
    } catch (const std::bad_alloc&) { // C++'s own exception for the same
    }
    return false;
}

// An exception that left here would leave the module half loaded, with its state current.
bool InitInstanceOf(CWinApp& app) {
    try {
        return app.InitInstance() != FALSE;
    } catch (CException* e) {
        e->Delete();
    } catch (...) { // of any kind
    }
    return false;
}

// The whole start, or nothing: what was begun before a failure is undone.
bool Start(HINSTANCE instance) {
    wchar_t noCommandLine[] = L"";
    if (!AfxCoreInitModule() || !AfxWinInit(instance, nullptr, noCommandLine, 0)) {
        AfxWinTerm();
        return false;
    }
    CWinApp* app = AfxGetApp();
    if (app && !InitInstanceOf(*app)) {
        app->ExitInstance();
        AfxWinTerm();
        return false;
    }
    if (!AddToChain(instance)) {
        if (app)
            app->ExitInstance();
        AfxWinTerm();
        AfxTermExtensionModule(extensionModule);
        return false;
    }
    return true;
}

void Stop() {
    if (CWinApp* app = AfxGetApp())
        app->ExitInstance();
    AfxWinTerm();
    AfxTermExtensionModule(extensionModule, TRUE);
}

} // namespace

AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState() {
    return &State();
}

// Called by the compiler's runtime before the module's static objects are made.
extern "C" BOOL WINAPI DllEntryPoint(HINSTANCE, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH)
        State().MakeCurrent();
    return TRUE;
}

// Called after the static objects were made, and before they are destroyed.
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    switch (reason) {
    case DLL_PROCESS_ATTACH:
        started = Start(instance);
        State().RestoreCallers();
        return started;
    case DLL_PROCESS_DETACH:
        State().MakeCurrent(); // until the last static object is gone
        if (std::exchange(started, false))
            Stop();
        return TRUE;
    case DLL_THREAD_DETACH: {
        AFX_MANAGE_STATE(&State());
        AfxTermThread(instance);
        return TRUE;
    }
    default:
        return TRUE;
    }
}
