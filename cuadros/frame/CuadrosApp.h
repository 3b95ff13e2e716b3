#pragma once

#include <afxwin.h>

// Kept: nothing in this library switches the framework's module state, though MFC's guides ask it
// of every exported function (AFX_MANAGE_STATE). A dialog runs under the state of the host that
// opens it: help and the file prompt are operations of the host's application object, and help
// contexts count pages of the host's help file. Under the library's own state `AfxGetApp` would
// give the object below, which has neither. The templates and texts are found all the same: loading
// the library puts its resources, and those of its language file, into the chain that every lookup
// walks.

/// The library's module object: gives the module its state and its resources their place in the
/// chain. It has no behaviour of its own.
class CCuadrosApp : public CWinApp {
public:
    CCuadrosApp();
    ~CCuadrosApp() override;

    DECLARE_MESSAGE_MAP()
};
