#include "bench/OptionsDlg.h"

#include "bench/ListFill.h"

namespace bench {

void OptionsDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    // clang-format off
    DDX_Control(pDX, IDC_UNITS,        m_units);
    DDX_Control(pDX, IDC_LAYERS,       m_layers);
    DDX_Text   (pDX, IDC_NAME,         m_options.name);
    DDX_Text   (pDX, IDC_PROJECT,      m_options.project);
    DDX_Text   (pDX, IDC_SURVEYOR,     m_options.surveyor);
    DDX_Text   (pDX, IDC_NOTES,        m_options.notes);
    DDX_Text   (pDX, IDC_POINTS,       m_options.points);
    DDX_Text   (pDX, IDC_LINES,        m_options.lines);
    DDX_Text   (pDX, IDC_SHEET,        m_options.sheet);
    DDX_Text   (pDX, IDC_LOWEST,       m_options.lowest);
    DDX_Text   (pDX, IDC_HIGHEST,      m_options.highest);
    DDX_Text   (pDX, IDC_INTERVAL,     m_options.interval);
    DDX_Text   (pDX, IDC_SCALE,        m_options.scale);
    DDX_Text   (pDX, IDC_TOLERANCE,    m_options.tolerance);
    for (int i = 0; i < checks; ++i)
        DDX_Check(pDX, IDC_FIRST_CHECK + i, m_options.flags[static_cast<std::size_t>(i)]);
    DDX_Radio  (pDX, IDC_FIRST_METHOD, m_options.method);
    DDX_CBIndex(pDX, IDC_UNITS,        m_options.units);
    // clang-format on
}

BOOL OptionsDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    CenterWindow();
    for (const wchar_t* unit : unitNames)
        m_units.AddString(unit);
    m_layers.InsertColumn(0, L"Layer", LVCFMT_LEFT, firstColumnWidth);
    m_layers.InsertColumn(1, L"Description", LVCFMT_LEFT, secondColumnWidth);
    m_layers.SetExtendedStyle(LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT);
    fill(m_layers, layersOfDialog);
    m_layers.SetItemState(m_options.layer, LVIS_SELECTED, LVIS_SELECTED);
    UpdateData(FALSE); // the combo box has its items only now
    return TRUE;
}

void OptionsDlg::OnOK() {
    m_options.layer = m_layers.GetNextItem(-1, LVNI_SELECTED);
    CDialog::OnOK();
}

} // namespace bench
