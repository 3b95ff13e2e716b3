// Linked into each application.
#include <afxwin.h>

AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState() {
    return AfxGetAppModuleState();
}
