#pragma once

#include <afxwin.h>

#include <utility>

/// For its life the host's application object is another one, or none.
class OtraAplicacion {
public:
    explicit OtraAplicacion(CWinApp* otra)
        : m_Antes(std::exchange(AfxGetModuleState()->m_pCurrentWinApp, otra)) {}
    ~OtraAplicacion() { AfxGetModuleState()->m_pCurrentWinApp = m_Antes; }
    OtraAplicacion(const OtraAplicacion&) = delete;
    OtraAplicacion& operator=(const OtraAplicacion&) = delete;

private:
    CWinApp* m_Antes;
};
