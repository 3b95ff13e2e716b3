// A real window to put controls into; remembers what they tell it.
#pragma once

#include <afxcmn.h>

#include <algorithm>
#include <vector>

class ControlWindow : public CWnd {
public:
    ControlWindow() {
        CreateEx(0, AfxRegisterWndClass(0), L"Controls", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                 500, 400, nullptr, nullptr);
    }

    std::vector<int> commands;      ///< the notification codes of WM_COMMAND
    std::vector<int> notifications; ///< the codes of WM_NOTIFY

    int Notified(int code) const {
        return static_cast<int>(std::count(notifications.begin(), notifications.end(), code));
    }

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        commands.push_back(HIWORD(wParam));
        return CWnd::OnCommand(wParam, lParam);
    }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
        notifications.push_back(static_cast<int>(reinterpret_cast<NMHDR*>(lParam)->code));
        return CWnd::OnNotify(wParam, lParam, pResult);
    }
};
