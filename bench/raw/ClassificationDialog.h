#pragma once

#include <windows.h>

#include <vector>

#include <cotana/entidad/InfoClasificacion.h>

namespace bench::raw {

/// The choice of classifications in plan by hand: the same template, the same steps.
class ClassificationDialog {
public:
    /// @param texts the module with the template and the texts; @param icons that with the icons.
    ClassificationDialog(const std::vector<Cotana::CInfoClasificacion>& classifications,
                         double& value, CString& name, HMODULE texts, HMODULE icons)
        : m_classifications(classifications), m_value(value), m_name(name), m_texts(texts),
          m_icons(icons) {}

    INT_PTR run(HWND owner);

    std::vector<int> chosen; ///< after OK: the selected rows

private:
    static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    void prepare(HWND dialog);
    void enableOk();
    void accept();

    std::vector<Cotana::CInfoClasificacion> m_classifications;
    double& m_value;
    CString& m_name;
    HMODULE m_texts;
    HMODULE m_icons;
    HWND m_dialog = nullptr;
    HWND m_list, m_valueText, m_nameText, m_box, m_ok;
};

} // namespace bench::raw
