#include "cuadros/import/ProyectarDEMDlg.h"

#include "cuadros/frame/Dialogo.h"
#include "cuadros/frame/Numeros.h"
#include "cuadros/frame/Peticiones.h"
#include "cuadros/resources/ImportIds.h"
#include "cuadros/resources/StringIds.h"

IMPLEMENT_DYNAMIC(CProyectarDEMDlg, CDialog)

CProyectarDEMDlg::CProyectarDEMDlg(Cotana::CDataProyectaDEM& datos, CWnd* padre)
    : CDialog(IDD_PROYECTAR_DEM, padre), m_pData(&datos), m_pPlantilla(Cuadros::PlantillaActual()) {
}

CProyectarDEMDlg::~CProyectarDEMDlg() = default;

void CProyectarDEMDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    // clang-format off
    DDX_Text (pDX, IDC_PROYECTAR_DEM_VALOR,              m_TextoValor);
    DDX_Text (pDX, IDC_PROYECTAR_DEM_FICHERO_INFORME,    m_pData->m_FicheroInforme);
    DDX_Check(pDX, IDC_PROYECTAR_DEM_INFORME,            m_pData->m_Informe);
    DDX_Check(pDX, IDC_PROYECTAR_DEM_OPCION,             m_pData->m_Opcion);
    DDX_Text (pDX, IDC_PROYECTAR_DEM_FICHERO_PROYECCION, m_pData->m_FicheroProyeccion);
    DDX_Radio(pDX, IDC_PROYECTAR_DEM_TIPO_1,             m_pData->m_Tipo);
    // clang-format on
}

BEGIN_MESSAGE_MAP(CProyectarDEMDlg, CDialog)
    ON_BN_CLICKED(IDC_PROYECTAR_DEM_BUSCAR_PROYECCION, &CProyectarDEMDlg::OnBnClickedBuscarProyecta)
    ON_BN_CLICKED(IDC_PROYECTAR_DEM_INFORME, &CProyectarDEMDlg::OnBnClickedCheckInforme)
    ON_BN_CLICKED(IDC_PROYECTAR_DEM_BUSCAR_INFORME, &CProyectarDEMDlg::OnBnClickedBuscarFicInforme)
    ON_WM_HELPINFO()
    ON_COMMAND(ID_HELP, &CProyectarDEMDlg::OnHelp)
END_MESSAGE_MAP()

BOOL CProyectarDEMDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    CenterWindow(); // kept: without an icon of its own
    m_TextoValor = Cuadros::ConDecimales(m_pData->m_Valor, 3);
    UpdateData(FALSE);
    OnBnClickedCheckInforme();
    return TRUE;
}

void CProyectarDEMDlg::OnBnClickedBuscarProyecta() {
    constexpr int proyecciones = 32; // the host's kind of file
    UpdateData(TRUE);
    if (Cuadros::PideFicheroAbrir(m_pData->m_FicheroProyeccion, &m_pPlantilla, proyecciones))
        UpdateData(FALSE);
}

void CProyectarDEMDlg::OnBnClickedCheckInforme() {
    UpdateData(TRUE);
    const bool informe = m_pData->m_Informe != 0;
    Cuadros::Habilita(*this, informe,
                      {IDC_PROYECTAR_DEM_FICHERO_INFORME, IDC_PROYECTAR_DEM_BUSCAR_INFORME});
    // Kept: the file that is chosen afterwards does not enable OK; the next click on the box does.
    Cuadros::Habilita(*this, !informe || !m_pData->m_FicheroInforme.IsEmpty(), {IDOK});
}

void CProyectarDEMDlg::OnBnClickedBuscarFicInforme() {
    UpdateData(TRUE);
    if (Cuadros::PideFicheroAlSistema(m_pData->m_FicheroInforme, IDS_FILTRO_GUARDAR))
        UpdateData(FALSE);
}

void CProyectarDEMDlg::OnOK() {
    UpdateData(TRUE);
    // Kept: a text that is no number is 0, without a message.
    m_pData->m_Valor = Cuadros::LeeNumero(m_TextoValor);
    CDialog::OnOK();
}

void CProyectarDEMDlg::OnHelp() {
    Cuadros::AbreAyuda(IDD_PROYECTAR_DEM);
}

BOOL CProyectarDEMDlg::OnHelpInfo(HELPINFO* /*pHelpInfo*/) {
    OnHelp();
    return TRUE;
}
