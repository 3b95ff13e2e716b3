#include "ProbeWindow.h"

#include "Diary.h"

BEGIN_MESSAGE_MAP(ProbeWindow, CWnd)
    ON_MESSAGE(WM_PROBE, &ProbeWindow::OnProbe)
END_MESSAGE_MAP()

HWND ProbeWindow::Open() {
    CreateEx(0, nullptr, L"Probe", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    return m_hWnd;
}

LRESULT ProbeWindow::OnProbe(WPARAM, LPARAM next) {
    Note(m_name);
    if (next) {
        ::SendMessage(reinterpret_cast<HWND>(next), WM_PROBE, 0, 0);
        Note(m_name);
    }
    return 0;
}
