#include "cuadros/triangulation/LimpiarRelieveRangoZDlg.h"

#include "cuadros/frame/Dialogo.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/ValoresLimpieza.h"

namespace Cotana {

IMPLEMENT_DYNAMIC(CLimpiarRelieveRangoZDlg, CDialog)

CLimpiarRelieveRangoZDlg::CLimpiarRelieveRangoZDlg(CDataLimpiarRelieveRangoZ& data, CWnd* padre)
    : CDialog(IDD_LIMPIAR_RELIEVE_RANGO_Z, padre), m_pData(&data) {}

CLimpiarRelieveRangoZDlg::~CLimpiarRelieveRangoZDlg() = default;

void CLimpiarRelieveRangoZDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_LIMPIAR_RELIEVE_RANGO_Z_VALOR_B, m_TextoB);
    DDX_Text(pDX, IDC_LIMPIAR_RELIEVE_RANGO_Z_VALOR_A, m_TextoA);
}

BEGIN_MESSAGE_MAP(CLimpiarRelieveRangoZDlg, CDialog)
    ON_WM_HELPINFO()
    ON_COMMAND(ID_HELP, &CLimpiarRelieveRangoZDlg::OnHelp)
END_MESSAGE_MAP()

BOOL CLimpiarRelieveRangoZDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Cuadros::CentraConIcono(*this, IDI_LIMPIAR_RELIEVE);
    Cuadros::MuestraValores(*m_pData, m_TextoA, m_TextoB);
    UpdateData(FALSE);
    return TRUE;
}

void CLimpiarRelieveRangoZDlg::OnOK() {
    UpdateData(TRUE);
    Cuadros::RecogeValores(*m_pData, m_TextoA, m_TextoB);
    CDialog::OnOK();
}

void CLimpiarRelieveRangoZDlg::OnHelp() {
    Cuadros::AbreAyuda(IDD_LIMPIAR_RELIEVE_RANGO_Z);
}

BOOL CLimpiarRelieveRangoZDlg::OnHelpInfo(HELPINFO* /*pHelpInfo*/) {
    OnHelp();
    return TRUE;
}

} // namespace Cotana
