// A regular DLL that writes down what its objects see.
#include "Diary.h"
#include "ProbeWindow.h"

#include <afxwin.h>

namespace {

class Witness {
public:
    Witness(const char* made, const char* destroyed) : m_destroyed(destroyed) { Note(made); }
    ~Witness() { Note(m_destroyed); }

private:
    const char* m_destroyed;
};

class ProbeApp : public CWinApp {
public:
    BOOL InitInstance() override {
        Note("InitInstance");
        return ::GetEnvironmentVariable(L"PROBE_REFUSES", nullptr, 0) == 0;
    }
    int ExitInstance() override {
        Note("ExitInstance");
        return CWinApp::ExitInstance();
    }
};

// In this order: the application object comes and goes between the witnesses.
const Witness first("first object made", "first object destroyed");
ProbeApp theApp;
const Witness last("last object made", "last object destroyed");

} // namespace

extern "C" __declspec(dllexport) AFX_MODULE_STATE* ProbeState() {
    return AfxGetStaticModuleState();
}

extern "C" __declspec(dllexport) CWinApp* ProbeApplication() {
    return &theApp;
}

extern "C" __declspec(dllexport) HWND ProbeOpenWindow() {
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return (new ProbeWindow("module's window"))->Open();
}
