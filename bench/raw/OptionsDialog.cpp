#include "bench/raw/OptionsDialog.h"

#include "bench/OptionsIds.h"
#include "bench/raw/Controls.h"

namespace bench::raw {

INT_PTR OptionsDialog::run(HWND owner) {
    const HMODULE module = GetModuleHandleW(nullptr);
    return DialogBoxIndirectParamW(module, findTemplate(module, IDD_OPTIONS), owner, procedure,
                                   reinterpret_cast<LPARAM>(this));
}

HWND OptionsDialog::create(HWND owner) {
    const HMODULE module = GetModuleHandleW(nullptr);
    return CreateDialogIndirectParamW(module, findTemplate(module, IDD_OPTIONS), owner, procedure,
                                      reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK OptionsDialog::procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(dialog, DWLP_USER, lParam);
        reinterpret_cast<OptionsDialog*>(lParam)->prepare(dialog);
        return TRUE;
    }
    if (message == WM_COMMAND && (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL)) {
        auto* const self = reinterpret_cast<OptionsDialog*>(GetWindowLongPtrW(dialog, DWLP_USER));
        if (LOWORD(wParam) == IDCANCEL)
            EndDialog(dialog, IDCANCEL);
        else if (self->read()) {
            self->m_options.layer = nextSelected(self->m_layers, -1);
            EndDialog(dialog, IDOK);
        }
        return TRUE;
    }
    return FALSE;
}

void OptionsDialog::prepare(HWND dialog) {
    m_name = GetDlgItem(dialog, IDC_NAME);
    m_project = GetDlgItem(dialog, IDC_PROJECT);
    m_surveyor = GetDlgItem(dialog, IDC_SURVEYOR);
    m_notes = GetDlgItem(dialog, IDC_NOTES);
    m_points = GetDlgItem(dialog, IDC_POINTS);
    m_lines = GetDlgItem(dialog, IDC_LINES);
    m_sheet = GetDlgItem(dialog, IDC_SHEET);
    m_lowest = GetDlgItem(dialog, IDC_LOWEST);
    m_highest = GetDlgItem(dialog, IDC_HIGHEST);
    m_interval = GetDlgItem(dialog, IDC_INTERVAL);
    m_scale = GetDlgItem(dialog, IDC_SCALE);
    m_tolerance = GetDlgItem(dialog, IDC_TOLERANCE);
    for (int i = 0; i < checks; ++i)
        m_flags[static_cast<std::size_t>(i)] = GetDlgItem(dialog, IDC_FIRST_CHECK + i);
    for (int i = 0; i < methods; ++i)
        m_methods[static_cast<std::size_t>(i)] = GetDlgItem(dialog, IDC_FIRST_METHOD + i);
    m_units = GetDlgItem(dialog, IDC_UNITS);
    m_layers = GetDlgItem(dialog, IDC_LAYERS);

    centre(dialog);
    for (const wchar_t* unit : unitNames)
        SendMessageW(m_units, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(unit));
    insertColumn(m_layers, 0, L"Layer", firstColumnWidth);
    insertColumn(m_layers, 1, L"Description", secondColumnWidth);
    SendMessageW(m_layers, LVM_SETEXTENDEDLISTVIEWSTYLE, 0,
                 LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT);
    fill(m_layers, layersOfDialog);
    selectRow(m_layers, m_options.layer);
    show();
}

void OptionsDialog::show() {
    showText(m_name, m_options.name.c_str(), m_options.name.size());
    showText(m_project, m_options.project.c_str(), m_options.project.size());
    showText(m_surveyor, m_options.surveyor.c_str(), m_options.surveyor.size());
    showText(m_notes, m_options.notes.c_str(), m_options.notes.size());
    showNumber(m_points, m_options.points);
    showNumber(m_lines, m_options.lines);
    showNumber(m_sheet, m_options.sheet);
    showNumber(m_lowest, m_options.lowest);
    showNumber(m_highest, m_options.highest);
    showNumber(m_interval, m_options.interval);
    showNumber(m_scale, m_options.scale);
    showNumber(m_tolerance, m_options.tolerance);
    for (std::size_t i = 0; i < m_flags.size(); ++i)
        showCheck(m_flags[i], m_options.flags[i]);
    for (std::size_t i = 0; i < m_methods.size(); ++i)
        showCheck(m_methods[i], static_cast<int>(i) == m_options.method);
    if (SendMessageW(m_units, CB_GETCURSEL, 0, 0) != m_options.units)
        SendMessageW(m_units, CB_SETCURSEL, static_cast<WPARAM>(m_options.units), 0);
}

bool OptionsDialog::read() {
    readText(m_name, m_options.name);
    readText(m_project, m_options.project);
    readText(m_surveyor, m_options.surveyor);
    readText(m_notes, m_options.notes);
    const bool numbers =
        readNumber(m_points, m_options.points) && readNumber(m_lines, m_options.lines) &&
        readNumber(m_sheet, m_options.sheet) && readNumber(m_lowest, m_options.lowest) &&
        readNumber(m_highest, m_options.highest) && readNumber(m_interval, m_options.interval) &&
        readNumber(m_scale, m_options.scale) && readNumber(m_tolerance, m_options.tolerance);
    for (std::size_t i = 0; i < m_flags.size(); ++i)
        m_options.flags[i] = readCheck(m_flags[i]);
    m_options.method = -1;
    for (std::size_t i = 0; i < m_methods.size(); ++i)
        if (readCheck(m_methods[i]) == BST_CHECKED)
            m_options.method = static_cast<int>(i);
    m_options.units = static_cast<int>(SendMessageW(m_units, CB_GETCURSEL, 0, 0));
    return numbers;
}

void fill(HWND list, const std::vector<LayerRow>& rows) {
    setRedraw(list, false);
    for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
        const LayerRow& row = rows[static_cast<std::size_t>(i)];
        insertRow(list, i, row.code.c_str(), row.description.c_str());
    }
    setRedraw(list, true);
}

} // namespace bench::raw
