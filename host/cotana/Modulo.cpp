// The module of the host's libraries. Its templates stand in the resource chain, so that its
// dialogs open under every module's state.
#include <afxwin.h>

namespace {

AFX_EXTENSION_MODULE modulo;

BOOL Empieza(HINSTANCE instancia) {
    if (!AfxInitExtensionModule(modulo, instancia))
        return FALSE;
    new CDynLinkLibrary(modulo); // the chain owns it
    return TRUE;
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instancia, DWORD motivo, LPVOID /*reservado*/) {
    if (motivo == DLL_PROCESS_ATTACH)
        return Empieza(instancia);
    if (motivo == DLL_PROCESS_DETACH)
        AfxTermExtensionModule(modulo);
    return TRUE;
}
