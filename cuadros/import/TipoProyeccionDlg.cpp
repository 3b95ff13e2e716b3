#include "cuadros/import/TipoProyeccionDlg.h"

#include "cuadros/frame/Dialogo.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/ImportIds.h"

CTipoProyeccionDlg::CTipoProyeccionDlg(Cotana::CDataTipoProyeccion& datos, CWnd* padre)
    : CDialog(IDD_TIPO_PROYECCION, padre), m_pData(&datos) {}

CTipoProyeccionDlg::~CTipoProyeccionDlg() = default;

void CTipoProyeccionDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Radio(pDX, IDC_TIPO_PROYECCION_1_1, m_pData->m_Proyeccion1);
    DDX_Radio(pDX, IDC_TIPO_PROYECCION_2_1, m_pData->m_Proyeccion2);
}

BEGIN_MESSAGE_MAP(CTipoProyeccionDlg, CDialog)
    ON_BN_CLICKED(IDC_TIPO_PROYECCION_1_1, &CTipoProyeccionDlg::OnCheckRadios)
    ON_BN_CLICKED(IDC_TIPO_PROYECCION_1_2, &CTipoProyeccionDlg::OnCheckRadios)
    ON_BN_CLICKED(IDC_TIPO_PROYECCION_2_1, &CTipoProyeccionDlg::OnCheckRadios)
    ON_BN_CLICKED(IDC_TIPO_PROYECCION_2_2, &CTipoProyeccionDlg::OnCheckRadios)
    ON_BN_CLICKED(IDC_TIPO_PROYECCION_2_3, &CTipoProyeccionDlg::OnCheckRadios)
    ON_WM_HELPINFO()
    ON_COMMAND(ID_HELP, &CTipoProyeccionDlg::OnHelp)
END_MESSAGE_MAP()

BOOL CTipoProyeccionDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Cuadros::CentraConIcono(*this, IDI_PROYECCION);
    OnCheckRadios();
    return TRUE;
}

void CTipoProyeccionDlg::OnCheckRadios() {
    UpdateData(TRUE);
    int& primera = m_pData->m_Proyeccion1;
    int& segunda = m_pData->m_Proyeccion2;
    Cuadros::Habilita(*this, primera != 0, {IDC_TIPO_PROYECCION_2_1});
    if (primera == 0 && segunda == 0)
        segunda = 2; // kept: not to the button beside it
    Cuadros::Habilita(*this, segunda != 0, {IDC_TIPO_PROYECCION_1_1});
    UpdateData(FALSE);
}

void CTipoProyeccionDlg::OnHelp() {
    Cuadros::AbreAyuda(IDD_TIPO_PROYECCION);
}

BOOL CTipoProyeccionDlg::OnHelpInfo(HELPINFO* /*pHelpInfo*/) {
    OnHelp();
    return TRUE;
}
