#include "cuadros/contours/CurvadoCodigosDlg.h"

#include "cuadros/frame/Dialogo.h"
#include "cuadros/resources/ContoursIds.h"
#include "cuadros/resources/IconIds.h"

IMPLEMENT_DYNAMIC(CCurvadoCodigosDlg, CDialog)

CCurvadoCodigosDlg::CCurvadoCodigosDlg(CString& codigo1, CString& codigo2, CString& codigo3,
                                       CString& codigo4, CString& codigo5, CWnd* padre)
    : CDialog(IDD_CURVADO_CODIGOS, padre), m_pCodigo1(&codigo1), m_pCodigo2(&codigo2),
      m_pCodigo3(&codigo3), m_pCodigo4(&codigo4), m_pCodigo5(&codigo5) {}

CCurvadoCodigosDlg::~CCurvadoCodigosDlg() = default;

void CCurvadoCodigosDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_CURVADO_CODIGOS_CODIGO_1, *m_pCodigo1);
    DDX_Text(pDX, IDC_CURVADO_CODIGOS_CODIGO_2, *m_pCodigo2);
    DDX_Text(pDX, IDC_CURVADO_CODIGOS_CODIGO_3, *m_pCodigo3);
    DDX_Text(pDX, IDC_CURVADO_CODIGOS_CODIGO_4, *m_pCodigo4);
    DDX_Text(pDX, IDC_CURVADO_CODIGOS_CODIGO_5, *m_pCodigo5);
}

BEGIN_MESSAGE_MAP(CCurvadoCodigosDlg, CDialog)
    ON_WM_HELPINFO()
    ON_COMMAND(ID_HELP, &CCurvadoCodigosDlg::OnHelp)
END_MESSAGE_MAP()

BOOL CCurvadoCodigosDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Cuadros::CentraConIcono(*this, IDI_CURVADO);
    // Kept: these figures are never shown.
    Cuadros::Muestra(*this, SW_HIDE,
                     {IDC_CURVADO_CODIGOS_NUMERO_1, IDC_CURVADO_CODIGOS_NUMERO_2,
                      IDC_CURVADO_CODIGOS_NUMERO_3, IDC_CURVADO_CODIGOS_NUMERO_4,
                      IDC_CURVADO_CODIGOS_NUMERO_5});
    return TRUE;
}

void CCurvadoCodigosDlg::OnHelp() {
    Cuadros::AbreAyuda(IDD_CURVADO_CODIGOS);
}

BOOL CCurvadoCodigosDlg::OnHelpInfo(HELPINFO* /*pHelpInfo*/) {
    OnHelp();
    return TRUE;
}
