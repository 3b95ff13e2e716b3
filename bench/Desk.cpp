#include "bench/Desk.h"

namespace bench {

Desk::Desk() : whenPainted(pressOk) {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_APPWORKSPACE + 1);
    windowClass.lpszClassName = L"BenchDesk";
    RegisterClassW(&windowClass);
    m_window = CreateWindowExW(0, windowClass.lpszClassName, L"Bench", WS_OVERLAPPEDWINDOW, 0, 0,
                               1000, 700, nullptr, nullptr, windowClass.hInstance, this);
    ShowWindow(m_window, SW_SHOWNORMAL);
    emptyQueue();
}

Desk::~Desk() {
    DestroyWindow(m_window);
}

namespace {
constexpr UINT paintMessage = WM_APP;
}

void Desk::paintAtNextMessage(HWND window) const {
    PostMessageW(m_window, paintMessage, 0, reinterpret_cast<LPARAM>(window));
}

LRESULT CALLBACK Desk::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* const creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA,
                          reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
    }
    // A modal loop tells its owner when it has nothing left to do. The system's own shows the
    // dialog right before it tells so, and has not painted it yet.
    if ((message == WM_ENTERIDLE && wParam == MSGF_DIALOGBOX) || message == paintMessage) {
        const auto dialog = reinterpret_cast<HWND>(lParam);
        if (IsWindowVisible(dialog)) {
            paintAll(dialog);
            reinterpret_cast<Desk*>(GetWindowLongPtrW(window, GWLP_USERDATA))->whenPainted(dialog);
        }
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

void paintAll(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void pressOk(HWND dialog) {
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, IDOK)));
}

void emptyQueue() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

} // namespace bench
