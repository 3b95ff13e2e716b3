#pragma once

#include <windows.h>

#include <initializer_list>

#include <cotana/modelo/DataCurvado.h>

namespace bench::raw {

/// The dialog of the contour options by hand: the same template, the same steps in the same order,
/// every control's handle remembered.
class ContourDialog {
public:
    /// @param lowest, highest elevations of the model, in metres.
    /// @param texts the module with the template and the texts; @param icons that with the icons.
    ContourDialog(Cotana::CDataCurvado& data, double lowest, double highest, HMODULE texts,
                  HMODULE icons)
        : m_data(data), m_lowest(lowest), m_highest(highest), m_texts(texts), m_icons(icons) {}

    INT_PTR run(HWND owner);

private:
    static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    void remember(HWND dialog);
    void prepare();
    void fillTypes();
    void showModel(int control, double elevation);
    void show();
    bool read();
    void enable(int enabled, std::initializer_list<int> controls);
    void scaleChanged();
    void typeChanged();
    UINT firstFault() const;
    void accept();

    Cotana::CDataCurvado& m_data;
    double m_lowest;
    double m_highest;
    HMODULE m_texts;
    HMODULE m_icons;
    HWND m_dialog = nullptr;
    HWND m_type;
    HWND m_interval, m_masterInterval, m_respected1, m_respected2, m_boundaryFile, m_scale;
    HWND m_labels, m_label2, m_label1, m_rangeLow, m_decimals, m_rangeHigh, m_boundary;
    HWND m_smoothingOption, m_option1, m_respect, m_range, m_mastersOnly, m_level;
    bool m_exchanging = false;
};

} // namespace bench::raw
