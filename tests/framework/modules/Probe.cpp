// A regular DLL that writes down what its objects see.
#include "Diary.h"
#include "ProbeWindow.h"

#include <afxwin.h>

#include <stdexcept>
#include <string_view>

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
        wchar_t refusal[20] = L"";
        ::GetEnvironmentVariable(L"PROBE_REFUSES", refusal, 20);
        const std::wstring_view how = refusal;
        if (how == L"exception")
            AfxThrowUserException();
        if (how == L"other exception")
            throw std::runtime_error("the module does not want to start");
        return how.empty();
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
