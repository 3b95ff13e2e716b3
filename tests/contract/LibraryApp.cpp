// The library's module object in a module of its own, where a test can look at it.
#include "cuadros/frame/CuadrosApp.h"

// It adds nothing to what the framework's has.
static_assert(sizeof(CCuadrosApp) == sizeof(CWinApp));

namespace {

struct Opened : CCuadrosApp {
    using CCuadrosApp::GetMessageMap;
};

} // namespace

extern "C" __declspec(dllexport) CWinApp* LibraryApp() {
    return AfxGetStaticModuleState()->m_pCurrentWinApp;
}

extern "C" __declspec(dllexport) const AFX_MSGMAP* LibraryAppMessageMap() {
    auto* const app = dynamic_cast<CCuadrosApp*>(LibraryApp());
    return app ? (app->*&Opened::GetMessageMap)() : nullptr;
}
