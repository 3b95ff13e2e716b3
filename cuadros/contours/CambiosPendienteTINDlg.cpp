#include "cuadros/contours/CambiosPendienteTINDlg.h"

#include "cuadros/frame/Dialogo.h"
#include "cuadros/resources/ContoursIds.h"
#include "cuadros/resources/IconIds.h"

IMPLEMENT_DYNAMIC(CCambiosPendienteTINDlg, CDialog)

CCambiosPendienteTINDlg::CCambiosPendienteTINDlg(Cotana::CDataCambiosPendiente& data, CWnd* padre)
    : CDialog(IDD_CAMBIOS_PENDIENTE_TIN, padre), m_pData(&data) {}

CCambiosPendienteTINDlg::~CCambiosPendienteTINDlg() = default;

void CCambiosPendienteTINDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    // An exchange ends at the first number that it refuses. So the boxes come first: OK follows
    // them even then.
    // clang-format off
    DDX_Check(pDX, IDC_CAMBIOS_PENDIENTE_TIN_DIBUJO_1, m_pData->m_GenerarDibujo1);
    DDX_Check(pDX, IDC_CAMBIOS_PENDIENTE_TIN_DIBUJO_2, m_pData->m_GenerarDibujo2);
    DDX_Text (pDX, IDC_CAMBIOS_PENDIENTE_TIN_CADENA,   m_pData->m_CadenaCambio);
    DDX_Text (pDX, IDC_CAMBIOS_PENDIENTE_TIN_ENTERO,   m_pData->m_EnteroCambio);
    DDX_Text (pDX, IDC_CAMBIOS_PENDIENTE_TIN_VALOR,    m_pData->m_ValorCambio);
    // clang-format on
}

BEGIN_MESSAGE_MAP(CCambiosPendienteTINDlg, CDialog)
    ON_BN_CLICKED(IDC_CAMBIOS_PENDIENTE_TIN_DIBUJO_1,
                  &CCambiosPendienteTINDlg::OnBnClickedGenerarDibujo)
    ON_BN_CLICKED(IDC_CAMBIOS_PENDIENTE_TIN_DIBUJO_2,
                  &CCambiosPendienteTINDlg::OnBnClickedGenerarDibujo)
    ON_WM_HELPINFO()
    ON_COMMAND(ID_HELP, &CCambiosPendienteTINDlg::OnHelp)
END_MESSAGE_MAP()

BOOL CCambiosPendienteTINDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Cuadros::CentraConIcono(*this, IDI_TRIANGULACION);
    // Kept: these two notes are never enabled.
    Cuadros::Habilita(
        *this, FALSE,
        {IDC_CAMBIOS_PENDIENTE_TIN_NOTA_VALOR, IDC_CAMBIOS_PENDIENTE_TIN_NOTA_CADENA});
    UpdateData(FALSE);
    OnBnClickedGenerarDibujo();
    return TRUE;
}

void CCambiosPendienteTINDlg::OnBnClickedGenerarDibujo() {
    UpdateData(TRUE);
    Cuadros::Habilita(*this, m_pData->m_GenerarDibujo1 || m_pData->m_GenerarDibujo2, {IDOK});
}

void CCambiosPendienteTINDlg::OnHelp() {
    Cuadros::AbreAyuda(IDD_CAMBIOS_PENDIENTE_TIN);
}

BOOL CCambiosPendienteTINDlg::OnHelpInfo(HELPINFO* /*pHelpInfo*/) {
    OnHelp();
    return TRUE;
}
