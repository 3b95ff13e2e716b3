// The plain options dialogs of both competitors, open at once; neither covers the other.
#pragma once

#include "bench/OptionsDlg.h"
#include "bench/Sections.h"
#include "bench/raw/OptionsDialog.h"

namespace bench {

struct SideBySide {
    explicit SideBySide(const Desk& desk) {
        dialog.Create(IDD_OPTIONS);
        const HWND second = dialogByHand.create(desk.window());
        RECT place;
        GetWindowRect(dialog.m_hWnd, &place);
        constexpr UINT flags = SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW;
        SetWindowPos(dialog.m_hWnd, nullptr, 0, 0, 0, 0, flags);
        SetWindowPos(second, nullptr, 0, place.bottom - place.top, 0, 0, flags);
        m_byHand = second;
        emptyQueue();
    }
    ~SideBySide() {
        dialog.DestroyWindow();
        DestroyWindow(m_byHand);
    }
    SideBySide(const SideBySide&) = delete;
    SideBySide& operator=(const SideBySide&) = delete;

    Options<CString> options = someOptions<CString>();
    OptionsDlg dialog{options};
    Options<std::wstring> optionsByHand = someOptions<std::wstring>();
    raw::OptionsDialog dialogByHand{optionsByHand};

private:
    HWND m_byHand;
};

} // namespace bench
