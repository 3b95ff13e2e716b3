// A window that writes its messages down.
#pragma once

#include <afxwin.h>

/// Writes the window's name down, sends itself on to the window in lParam, if there is one, and
/// writes the name down again.
constexpr UINT WM_PROBE = WM_APP + 1;

class ProbeWindow : public CWnd {
public:
    explicit ProbeWindow(const char* name) : m_name(name) {}

    /// Makes the window under the current module state; its object lives as long as it.
    HWND Open();

    afx_msg LRESULT OnProbe(WPARAM, LPARAM next);
    void PostNcDestroy() override { delete this; }

    DECLARE_MESSAGE_MAP()

private:
    const char* m_name;
};
