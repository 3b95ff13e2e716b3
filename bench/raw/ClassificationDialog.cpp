#include "bench/raw/ClassificationDialog.h"

#include <cstdio>
#include <cstdlib>

#include "bench/raw/Controls.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/StringIds.h"
#include "cuadros/resources/TriangulationIds.h"

namespace bench::raw {

namespace {

void setCell(HWND list, int row, int column, const wchar_t* text) {
    LVITEMW cell = {};
    cell.iSubItem = column;
    cell.pszText = const_cast<wchar_t*>(text);
    SendMessageW(list, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&cell));
}

} // namespace

INT_PTR ClassificationDialog::run(HWND owner) {
    return DialogBoxIndirectParamW(m_texts, findTemplate(m_texts, IDD_TRIANGULACION_2D), owner,
                                   procedure, reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK ClassificationDialog::procedure(HWND dialog, UINT message, WPARAM wParam,
                                                 LPARAM lParam) {
    auto* self = reinterpret_cast<ClassificationDialog*>(GetWindowLongPtrW(dialog, DWLP_USER));
    switch (message) {
    case WM_INITDIALOG:
        SetWindowLongPtrW(dialog, DWLP_USER, lParam);
        reinterpret_cast<ClassificationDialog*>(lParam)->prepare(dialog);
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(wParam) != IDOK)
            return FALSE;
        self->accept();
        return TRUE;
    case WM_NOTIFY:
        if (!self || reinterpret_cast<const NMHDR*>(lParam)->code != LVN_ITEMCHANGED)
            return FALSE;
        self->enableOk();
        return TRUE;
    default:
        return FALSE;
    }
}

void ClassificationDialog::prepare(HWND dialog) {
    m_dialog = dialog;
    m_list = GetDlgItem(dialog, IDC_TRIANGULACION_2D_CLASIFICACIONES);
    m_valueText = GetDlgItem(dialog, IDC_TRIANGULACION_2D_VALOR);
    m_nameText = GetDlgItem(dialog, IDC_TRIANGULACION_2D_NOMBRE);
    m_box = GetDlgItem(dialog, IDC_TRIANGULACION_2D_CASILLA);
    m_ok = GetDlgItem(dialog, IDOK);
    centre(dialog);
    SendMessageW(dialog, WM_SETICON, ICON_SMALL,
                 reinterpret_cast<LPARAM>(LoadIconW(m_icons, MAKEINTRESOURCEW(IDI_TRIANGULACION))));
    wchar_t text[longestText];
    constexpr struct {
        UINT heading;
        int width;
    } columns[] = {{IDS_COLUMNA_CODIGO, 35}, {IDS_COLUMNA_TIPO, 200}, {IDS_COLUMNA_VALOR, 75}};
    for (int i = 0; i < 3; ++i) {
        LoadStringW(m_texts, columns[i].heading, text, longestText);
        insertColumn(m_list, i, text, columns[i].width);
    }
    SendMessageW(m_list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT);

    setRedraw(m_list, false);
    const int rows = static_cast<int>(m_classifications.size());
    for (int i = 0; i < rows; ++i) {
        const auto& classification = m_classifications[static_cast<std::size_t>(i)];
        std::swprintf(text, longestText, L"%d", classification.GetClasificacion());
        LVITEMW item = {};
        item.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_STATE;
        item.iItem = i;
        item.pszText = text;
        item.state = INDEXTOSTATEIMAGEMASK(1);
        item.stateMask = LVIS_STATEIMAGEMASK;
        SendMessageW(m_list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    for (int i = 0; i < rows; ++i) {
        const auto& classification = m_classifications[static_cast<std::size_t>(i)];
        setCell(m_list, i, 1, classification.Descripcion(false));
        std::swprintf(text, longestText, L"%d", classification.GetPuntos());
        setCell(m_list, i, 2, text);
    }
    setRedraw(m_list, true);

    selectRow(m_list, 0);
    const int length = std::swprintf(text, longestText, L"%.3f", m_value);
    showText(m_valueText, text, static_cast<std::size_t>(length));
    showText(m_nameText, m_name.GetString(), static_cast<std::size_t>(m_name.GetLength()));
    showCheck(m_box, 1);
    enableOk();
}

void ClassificationDialog::enableOk() {
    EnableWindow(m_ok, nextSelected(m_list, -1) >= 0);
}

void ClassificationDialog::accept() {
    wchar_t text[longestText];
    GetWindowTextW(m_valueText, text, longestText);
    readText(m_nameText, m_name);
    for (int i = nextSelected(m_list, -1); i >= 0; i = nextSelected(m_list, i))
        chosen.push_back(i);
    m_value = _wtof(text);
    EndDialog(m_dialog, IDOK);
}

} // namespace bench::raw
