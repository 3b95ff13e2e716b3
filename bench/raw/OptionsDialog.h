#pragma once

#include <windows.h>

#include <string>

#include "bench/Options.h"

namespace bench::raw {

/// The plain options dialog by hand, with every control's handle remembered.
class OptionsDialog {
public:
    explicit OptionsDialog(Options<std::wstring>& options) : m_options(options) {}

    /// Runs it; returns the identifier of the button that ended it.
    INT_PTR run(HWND owner);
    /// Opens it modeless.
    HWND create(HWND owner);

    void show();
    bool read();
    HWND layers() const { return m_layers; }

private:
    static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    void prepare(HWND dialog);

    Options<std::wstring>& m_options;
    HWND m_name, m_project, m_surveyor, m_notes;
    HWND m_points, m_lines, m_sheet;
    HWND m_lowest, m_highest, m_interval, m_scale, m_tolerance;
    std::array<HWND, checks> m_flags;
    std::array<HWND, methods> m_methods;
    HWND m_units, m_layers;
};

/// Fills a list of two columns while it is not drawn.
void fill(HWND list, const std::vector<LayerRow>& rows);

} // namespace bench::raw
