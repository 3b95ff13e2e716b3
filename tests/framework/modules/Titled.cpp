// A regular DLL that is nothing but an application object.
#include <afxwin.h>

namespace {
CWinApp theApp;
}

extern "C" __declspec(dllexport) CWinApp* TitledApplication() {
    return &theApp;
}
