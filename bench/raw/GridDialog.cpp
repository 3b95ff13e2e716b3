#include "bench/raw/GridDialog.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "bench/raw/Controls.h"
#include "cuadros/resources/ImportIds.h"

namespace bench::raw {

namespace {

/// The place of the first side to import among the texts: lowest and highest x, then y.
constexpr std::size_t Sides = 4;

double numberOf(const std::wstring& text) {
    char digits[longestText];
    const std::size_t length = std::min(text.size(), std::size(digits));
    for (std::size_t i = 0; i < length; ++i)
        digits[i] = text[i] < 0x80 ? static_cast<char>(text[i]) : '?';
    double number = 0;
    std::from_chars(digits, digits + length, number);
    return number;
}

} // namespace

HWND GridDialog::create(HWND owner) {
    return CreateDialogIndirectParamW(m_texts, findTemplate(m_texts, IDD_IMPORTAR_GRID), owner,
                                      procedure, reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK GridDialog::procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<GridDialog*>(GetWindowLongPtrW(dialog, DWLP_USER));
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(dialog, DWLP_USER, lParam);
        reinterpret_cast<GridDialog*>(lParam)->prepare(dialog);
        return TRUE;
    }
    if (message != WM_COMMAND || !self || self->m_exchanging)
        return FALSE;
    switch (wParam) {
    case MAKEWPARAM(IDC_IMPORTAR_GRID_X_MINIMA, EN_CHANGE):
    case MAKEWPARAM(IDC_IMPORTAR_GRID_X_MAXIMA, EN_CHANGE):
    case MAKEWPARAM(IDC_IMPORTAR_GRID_Y_MINIMA, EN_CHANGE):
    case MAKEWPARAM(IDC_IMPORTAR_GRID_Y_MAXIMA, EN_CHANGE):
    case MAKEWPARAM(IDC_IMPORTAR_GRID_RAZON, EN_CHANGE):
        self->count();
        return TRUE;
    default:
        return FALSE;
    }
}

void GridDialog::prepare(HWND dialog) {
    m_exchanging = true;
    const auto& [fileHighest, fileLowest] = m_data.m_ExtensionFichero;
    const auto& [highest, lowest] = m_data.m_Extension;
    const struct {
        int control;
        double number;
    } staged[] = {
        {IDC_IMPORTAR_GRID_FICHERO_X_MINIMA, fileLowest.m_X},
        {IDC_IMPORTAR_GRID_FICHERO_X_MAXIMA, fileHighest.m_X},
        {IDC_IMPORTAR_GRID_FICHERO_Y_MINIMA, fileLowest.m_Y},
        {IDC_IMPORTAR_GRID_FICHERO_Y_MAXIMA, fileHighest.m_Y},
        {IDC_IMPORTAR_GRID_X_MINIMA, lowest.m_X},
        {IDC_IMPORTAR_GRID_X_MAXIMA, highest.m_X},
        {IDC_IMPORTAR_GRID_Y_MINIMA, lowest.m_Y},
        {IDC_IMPORTAR_GRID_Y_MAXIMA, highest.m_Y},
        {IDC_IMPORTAR_GRID_PASO, m_data.m_Paso.m_X},
    };
    for (std::size_t i = 0; i < m_staged.size(); ++i) {
        wchar_t text[64];
        std::swprintf(text, std::size(text), L"%.3lf", staged[i].number);
        m_staged[i] = {GetDlgItem(dialog, staged[i].control), text};
    }
    m_toImport = GetDlgItem(dialog, IDC_IMPORTAR_GRID_PUNTOS_IMPORTAR);
    m_inFile = GetDlgItem(dialog, IDC_IMPORTAR_GRID_PUNTOS_FICHERO);
    m_ratio = GetDlgItem(dialog, IDC_IMPORTAR_GRID_RAZON);
    show();
    count();
}

bool GridDialog::read() {
    if (!readNumber(m_toImport, m_data.m_PuntosImportar) ||
        !readNumber(m_inFile, m_data.m_PuntosFichero))
        return false;
    for (Staged& staged : m_staged)
        readText(staged.control, staged.text);
    return readNumber(m_ratio, m_data.m_Razon);
}

void GridDialog::show() {
    m_exchanging = true;
    showNumber(m_toImport, m_data.m_PuntosImportar);
    showNumber(m_inFile, m_data.m_PuntosFichero);
    for (const Staged& staged : m_staged)
        showText(staged.control, staged.text.c_str(), staged.text.size());
    showNumber(m_ratio, m_data.m_Razon);
    m_exchanging = false;
}

void GridDialog::count() {
    read();
    const auto& [fileHighest, fileLowest] = m_data.m_ExtensionFichero;
    const auto side = [this](std::size_t at) { return numberOf(m_staged[Sides + at].text); };
    const double lowX = std::max(side(0), fileLowest.m_X);
    const double highX = std::min(side(1), fileHighest.m_X);
    const double lowY = std::max(side(2), fileLowest.m_Y);
    const double highY = std::min(side(3), fileHighest.m_Y);
    const double step = m_data.m_Razon * m_data.m_Paso.m_X;
    m_data.m_PuntosImportar = std::abs(static_cast<int>((std::max(lowX, highX) - lowX) / step)) *
                              std::abs(static_cast<int>((std::max(lowY, highY) - lowY) / step));
    show();
}

} // namespace bench::raw
