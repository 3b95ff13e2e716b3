#include "cuadros/triangulation/SuavizarTINDlg.h"

#include "cuadros/frame/Dialogo.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/TriangulationIds.h"

IMPLEMENT_DYNAMIC(CSuavizarTINDlg, CDialog)

CSuavizarTINDlg::CSuavizarTINDlg(Cotana::CDataSuavizarTIN& data, CWnd* padre)
    : CDialog(IDD_SUAVIZAR_TIN, padre), m_pData(&data) {}

CSuavizarTINDlg::~CSuavizarTINDlg() = default;

void CSuavizarTINDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    // Kept: the number of times comes first, so that a bad one leaves the click on the box unread.
    // clang-format off
    DDX_Text (pDX, IDC_SUAVIZAR_TIN_ITERACIONES, m_pData->m_Iteraciones);
    DDX_Check(pDX, IDC_SUAVIZAR_TIN_ITERAR,      m_pData->m_Iterar);
    DDX_Text (pDX, IDC_SUAVIZAR_TIN_FACTOR,      m_pData->m_Factor);
    // clang-format on
}

BEGIN_MESSAGE_MAP(CSuavizarTINDlg, CDialog)
    ON_BN_CLICKED(IDC_SUAVIZAR_TIN_ITERAR, &CSuavizarTINDlg::OnBnClickedCheckIterar)
    ON_WM_HELPINFO()
    ON_COMMAND(ID_HELP, &CSuavizarTINDlg::OnHelp)
END_MESSAGE_MAP()

BOOL CSuavizarTINDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Cuadros::CentraConIcono(*this, IDI_TRIANGULACION);
    UpdateData(FALSE);
    OnBnClickedCheckIterar();
    return TRUE;
}

void CSuavizarTINDlg::OnBnClickedCheckIterar() {
    UpdateData(TRUE);
    Cuadros::Habilita(*this, m_pData->m_Iterar, {IDC_SUAVIZAR_TIN_ITERACIONES});
}

void CSuavizarTINDlg::OnHelp() {
    Cuadros::AbreAyuda(IDD_SUAVIZAR_TIN);
}

BOOL CSuavizarTINDlg::OnHelpInfo(HELPINFO* /*pHelpInfo*/) {
    OnHelp();
    return TRUE;
}
