// The entry point of an application whose CWinApp object runs it.
#include <afxwin.h>

extern "C" int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR commandLine, int showCommand) {
    CWinApp* app = AfxGetApp();
    if (!AfxWinInit(instance, nullptr, commandLine, showCommand) || !app) {
        AfxWinTerm();
        return -1;
    }
    const int result =
        app->InitApplication() && app->InitInstance() ? app->Run() : app->ExitInstance();
    AfxWinTerm();
    return result;
}
