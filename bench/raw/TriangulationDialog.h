#pragma once

#include <windows.h>

#include <array>

#include <cotana/triangulacion/DataTriangulacion.h>

namespace bench::raw {

/// The dialog of the triangulation options by hand: the same template, the same steps in the
/// same order, every control's handle remembered.
class TriangulationDialog {
public:
    /// @param texts the module with the template and the texts; @param icons that with the icons.
    TriangulationDialog(Cotana::CDataTriangulacion& data, HMODULE texts, HMODULE icons)
        : m_data(data), m_texts(texts), m_icons(icons) {}

    INT_PTR run(HWND owner);
    HWND create(HWND owner);

private:
    static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR command(UINT control);
    void remember(HWND dialog);
    void prepare();
    void prepareList(HWND list);
    void show();
    bool read();
    void codesChanged();
    void rebuildBreaklines();
    void enableOk();
    void enableBreaklines();
    void accept();

    Cotana::CDataTriangulacion& m_data;
    HMODULE m_texts;
    HMODULE m_icons;
    HWND m_dialog = nullptr;
    HWND m_codes, m_breaklines;
    HWND m_useBreaklines, m_noJoin;
    HWND m_name, m_lower, m_upper, m_distance, m_parameter;
    std::array<HWND, 4> m_treatments;
    HWND m_allBreaklines, m_noBreaklines, m_ok;
    bool m_exchanging = false;
};

} // namespace bench::raw
