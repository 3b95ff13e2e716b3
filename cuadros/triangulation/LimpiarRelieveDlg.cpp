#include "cuadros/triangulation/LimpiarRelieveDlg.h"

#include "cuadros/frame/Dialogo.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/ValoresLimpieza.h"

namespace Cotana {

CLimpiarRelieveDlg::CLimpiarRelieveDlg(CDataLimpiarRelieve& data, CWnd* padre)
    : CDialog(IDD_LIMPIAR_RELIEVE, padre), m_pData(&data) {}

CLimpiarRelieveDlg::~CLimpiarRelieveDlg() = default;

void CLimpiarRelieveDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_LIMPIAR_RELIEVE_VALOR_B, m_TextoB);
    DDX_Text(pDX, IDC_LIMPIAR_RELIEVE_VALOR_A, m_TextoA);
}

BEGIN_MESSAGE_MAP(CLimpiarRelieveDlg, CDialog)
    ON_WM_HELPINFO()
    ON_COMMAND(ID_HELP, &CLimpiarRelieveDlg::OnHelp)
END_MESSAGE_MAP()

BOOL CLimpiarRelieveDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Cuadros::CentraConIcono(*this, IDI_LIMPIAR_RELIEVE);
    Cuadros::MuestraValores(*m_pData, m_TextoA, m_TextoB);
    UpdateData(FALSE);
    return TRUE;
}

void CLimpiarRelieveDlg::OnOK() {
    UpdateData(TRUE);
    Cuadros::RecogeValores(*m_pData, m_TextoA, m_TextoB);
    CDialog::OnOK();
}

void CLimpiarRelieveDlg::OnHelp() {
    Cuadros::AbreAyuda(IDD_LIMPIAR_RELIEVE);
}

BOOL CLimpiarRelieveDlg::OnHelpInfo(HELPINFO* /*pHelpInfo*/) {
    OnHelp();
    return TRUE;
}

} // namespace Cotana
