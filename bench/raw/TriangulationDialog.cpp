#include "bench/raw/TriangulationDialog.h"

#include "bench/raw/Controls.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/StringIds.h"
#include "cuadros/resources/TriangulationIds.h"

namespace bench::raw {

namespace {

using Cotana::CDigiTab;

void fill(HWND list, const CDigiTab& table) {
    for (unsigned int i = 0; i < table.Cantidad(); ++i) {
        const int row = static_cast<int>(i);
        LVITEMW item = {};
        item.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_STATE;
        item.iItem = row;
        item.pszText = const_cast<wchar_t*>(table[i].GetCodigo().GetString());
        item.state = INDEXTOSTATEIMAGEMASK(1);
        item.stateMask = LVIS_STATEIMAGEMASK;
        SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        LVITEMW sub = {};
        sub.iSubItem = 1;
        sub.pszText = const_cast<wchar_t*>(table[i].GetNemotecnico().GetString());
        SendMessageW(list, LVM_SETITEMTEXTW, i, reinterpret_cast<LPARAM>(&sub));
    }
}

CDigiTab selected(HWND list, const CDigiTab& table) {
    CDigiTab chosen;
    for (int i = nextSelected(list, -1); i >= 0; i = nextSelected(list, i))
        chosen.Inserta(table[static_cast<unsigned int>(i)], true);
    return chosen;
}

} // namespace

INT_PTR TriangulationDialog::run(HWND owner) {
    return DialogBoxIndirectParamW(m_texts, findTemplate(m_texts, IDD_TRIANGULACION), owner,
                                   procedure, reinterpret_cast<LPARAM>(this));
}

HWND TriangulationDialog::create(HWND owner) {
    return CreateDialogIndirectParamW(m_texts, findTemplate(m_texts, IDD_TRIANGULACION), owner,
                                      procedure, reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK TriangulationDialog::procedure(HWND dialog, UINT message, WPARAM wParam,
                                                LPARAM lParam) {
    auto* self = reinterpret_cast<TriangulationDialog*>(GetWindowLongPtrW(dialog, DWLP_USER));
    switch (message) {
    case WM_INITDIALOG:
        SetWindowLongPtrW(dialog, DWLP_USER, lParam);
        self = reinterpret_cast<TriangulationDialog*>(lParam);
        self->remember(dialog);
        self->prepare();
        return TRUE;
    case WM_COMMAND:
        return self && HIWORD(wParam) == BN_CLICKED && self->command(LOWORD(wParam));
    case WM_NOTIFY: {
        const auto* const header = reinterpret_cast<const NMHDR*>(lParam);
        if (!self || self->m_exchanging || header->code != LVN_ITEMCHANGED ||
            header->hwndFrom != self->m_codes)
            return FALSE;
        self->codesChanged();
        return TRUE;
    }
    default:
        return FALSE;
    }
}

INT_PTR TriangulationDialog::command(UINT control) {
    switch (control) {
    case IDOK:
        accept();
        return TRUE;
    case IDCANCEL:
        EndDialog(m_dialog, IDCANCEL);
        return TRUE;
    default:
        return FALSE; // nobody presses the others here
    }
}

void TriangulationDialog::remember(HWND dialog) {
    m_dialog = dialog;
    m_codes = GetDlgItem(dialog, IDC_TRIANGULACION_CODIGOS);
    m_breaklines = GetDlgItem(dialog, IDC_TRIANGULACION_RUPTURAS);
    m_useBreaklines = GetDlgItem(dialog, IDC_TRIANGULACION_USAR_RUPTURAS);
    m_noJoin = GetDlgItem(dialog, IDC_TRIANGULACION_NO_UNIR_CURVAS);
    m_name = GetDlgItem(dialog, IDC_TRIANGULACION_NOMBRE);
    m_lower = GetDlgItem(dialog, IDC_TRIANGULACION_LIMITE_INFERIOR);
    m_upper = GetDlgItem(dialog, IDC_TRIANGULACION_LIMITE_SUPERIOR);
    m_distance = GetDlgItem(dialog, IDC_TRIANGULACION_DISTANCIA_NO_UNIR);
    m_parameter = GetDlgItem(dialog, IDC_TRIANGULACION_PARAMETRO_EXTRA);
    m_treatments = {GetDlgItem(dialog, IDC_TRIANGULACION_TIPO_RUPTURA_1),
                    GetDlgItem(dialog, IDC_TRIANGULACION_TIPO_RUPTURA_2),
                    GetDlgItem(dialog, IDC_TRIANGULACION_TIPO_RUPTURA_3),
                    GetDlgItem(dialog, IDC_TRIANGULACION_TIPO_RUPTURA_4)};
    m_allBreaklines = GetDlgItem(dialog, IDC_TRIANGULACION_TODAS_RUPTURAS);
    m_noBreaklines = GetDlgItem(dialog, IDC_TRIANGULACION_NINGUNA_RUPTURA);
    m_ok = GetDlgItem(dialog, IDOK);
}

void TriangulationDialog::prepareList(HWND list) {
    wchar_t heading[longestText];
    LoadStringW(m_texts, IDS_COLUMNA_CODIGO, heading, longestText);
    insertColumn(list, 0, heading, 100);
    LoadStringW(m_texts, IDS_COLUMNA_NEMOTECNICO, heading, longestText);
    insertColumn(list, 1, heading, 230);
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT);
}

void TriangulationDialog::prepare() {
    show();
    centre(m_dialog);
    SendMessageW(m_dialog, WM_SETICON, ICON_SMALL,
                 reinterpret_cast<LPARAM>(LoadIconW(m_icons, MAKEINTRESOURCEW(IDI_TRIANGULACION))));
    prepareList(m_codes);
    prepareList(m_breaklines);
    setRedraw(m_codes, false);
    fill(m_codes, m_data.m_Codigos);
    setRedraw(m_codes, true);
    show();
    for (unsigned int i = 0; i < m_data.m_Codigos.Cantidad(); ++i)
        selectRow(m_codes, static_cast<int>(i));
    enableBreaklines();
    read();
    EnableWindow(m_distance, m_data.m_NoUnirCurvas);
    enableOk();
}

void TriangulationDialog::show() {
    m_exchanging = true;
    showCheck(m_useBreaklines, m_data.m_Rupturas);
    showCheck(m_noJoin, m_data.m_NoUnirCurvas);
    showText(m_name, m_data.m_Nombre.GetString(),
             static_cast<std::size_t>(m_data.m_Nombre.GetLength()));
    showNumber(m_lower, m_data.m_LimiteInferior);
    showNumber(m_upper, m_data.m_LimiteSuperior);
    showNumber(m_distance, m_data.m_DistanciaNoUnir);
    showNumber(m_parameter, m_data.m_ParametroExtra);
    for (std::size_t i = 0; i < m_treatments.size(); ++i)
        showCheck(m_treatments[i], static_cast<int>(i) == m_data.m_TipoRuptura);
    m_exchanging = false;
}

bool TriangulationDialog::read() {
    m_data.m_Rupturas = readCheck(m_useBreaklines);
    m_data.m_NoUnirCurvas = readCheck(m_noJoin);
    readText(m_name, m_data.m_Nombre);
    const bool numbers = readNumber(m_lower, m_data.m_LimiteInferior) &&
                         readNumber(m_upper, m_data.m_LimiteSuperior) &&
                         readNumber(m_distance, m_data.m_DistanciaNoUnir) &&
                         readNumber(m_parameter, m_data.m_ParametroExtra);
    m_data.m_TipoRuptura = -1;
    for (std::size_t i = 0; i < m_treatments.size(); ++i)
        if (readCheck(m_treatments[i]) == BST_CHECKED)
            m_data.m_TipoRuptura = static_cast<int>(i);
    return numbers;
}

void TriangulationDialog::codesChanged() {
    read();
    m_data.m_CodigosRuptura = selected(m_codes, m_data.m_Codigos);
    rebuildBreaklines();
    enableOk();
}

void TriangulationDialog::rebuildBreaklines() {
    read();
    const int rows = static_cast<int>(SendMessageW(m_breaklines, LVM_GETITEMCOUNT, 0, 0));
    for (int i = 0; i < rows; ++i)
        SendMessageW(m_breaklines, LVM_GETITEMSTATE, static_cast<WPARAM>(i), LVIS_SELECTED);
    setRedraw(m_breaklines, false);
    SendMessageW(m_breaklines, LVM_DELETEALLITEMS, 0, 0);
    fill(m_breaklines, m_data.m_CodigosRuptura);
    for (unsigned int i = 0; i < m_data.m_CodigosRuptura.Cantidad(); ++i)
        selectRow(m_breaklines, static_cast<int>(i));
    setRedraw(m_breaklines, true);
    show();
}

void TriangulationDialog::enableOk() {
    EnableWindow(m_ok, m_data.m_CodigosRuptura.Cantidad() != 0);
}

void TriangulationDialog::enableBreaklines() {
    read();
    for (const HWND control : {m_breaklines, m_allBreaklines, m_noBreaklines})
        EnableWindow(control, m_data.m_Rupturas);
    for (const HWND control : m_treatments)
        EnableWindow(control, m_data.m_Rupturas);
}

void TriangulationDialog::accept() {
    if (!read())
        return;
    const CDigiTab codes = selected(m_codes, m_data.m_Codigos);
    const CDigiTab breaklines = selected(m_breaklines, m_data.m_CodigosRuptura);
    constexpr double tolerance = 1e-7;
    if (codes.Cantidad() == 0)
        return refuse(m_dialog, m_texts, IDS_SIN_CODIGOS);
    if (m_data.m_LimiteInferior >= m_data.m_LimiteSuperior)
        return refuse(m_dialog, m_texts, IDS_LIMITES_NO_CRECIENTES);
    if (m_data.m_DistanciaNoUnir <= tolerance)
        return refuse(m_dialog, m_texts, IDS_VALOR_NO_POSITIVO);
    if (m_data.m_Nombre.IsEmpty())
        return refuse(m_dialog, m_texts, IDS_TEXTO_OBLIGATORIO);
    m_data.m_Codigos = codes;
    m_data.m_CodigosRuptura = breaklines;
    m_data.m_CodigosExtra1.clear();
    m_data.m_CodigosExtra2.clear();
    if (read())
        EndDialog(m_dialog, IDOK);
}

} // namespace bench::raw
