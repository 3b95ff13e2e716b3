#pragma once

#include <windows.h>

#include <array>
#include <string>

#include "cuadros/import/DataImportarGrid.h"

namespace bench::raw {

/// The dialog of the grid import by hand, as far as a key counts: the same template, the same steps
/// in the same order, every control's handle remembered.
class GridDialog {
public:
    /// @param texts the module with the template.
    GridDialog(CDataImportarGrid& data, HMODULE texts) : m_data(data), m_texts(texts) {}

    /// Makes the window, which must not outlive this.
    HWND create(HWND owner);

private:
    static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    void prepare(HWND dialog);
    bool read();
    void show();
    void count();

    /// A text of the dialog and the control that has it.
    struct Staged {
        HWND control = nullptr;
        std::wstring text;
    };

    CDataImportarGrid& m_data;
    HMODULE m_texts;
    std::array<Staged, 9> m_staged; ///< The sides of the file, those to import, the spacing.
    HWND m_toImport = nullptr, m_inFile = nullptr, m_ratio = nullptr;
    bool m_exchanging = false;
};

} // namespace bench::raw
