#include "cuadros/triangulation/GenerarCasesDlg.h"

#include "cuadros/frame/Dialogo.h"
#include "cuadros/frame/Peticiones.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/ListaHojas.h"

namespace Cotana {

IMPLEMENT_DYNAMIC(CGenerarCasesDlg, CDialog)

CGenerarCasesDlg::CGenerarCasesDlg(std::vector<CString>& ficheros, CDocTemplate* plantilla,
                                   double& valor, CWnd* padre)
    : CDialog(IDD_GENERAR_CASES, padre), m_pValor(&valor), m_pFicheros(&ficheros),
      m_pPlantilla(plantilla) {}

CGenerarCasesDlg::~CGenerarCasesDlg() = default;

void CGenerarCasesDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    // clang-format off
    DDX_Text   (pDX, IDC_GENERAR_CASES_VALOR, *m_pValor);
    DDX_Control(pDX, IDC_GENERAR_CASES_HOJAS, m_ListaHojas);
    // clang-format on
}

BEGIN_MESSAGE_MAP(CGenerarCasesDlg, CDialog)
    ON_BN_CLICKED(IDC_GENERAR_CASES_SUMAR, &CGenerarCasesDlg::OnBnClickedSumarArchivos)
    ON_BN_CLICKED(IDC_GENERAR_CASES_RESTAR, &CGenerarCasesDlg::OnBnClickedRestarArchivos)
    ON_LBN_SELCHANGE(IDC_GENERAR_CASES_HOJAS, &CGenerarCasesDlg::OnLbnSelchangeListaHojas)
    ON_WM_DROPFILES()
END_MESSAGE_MAP()

BOOL CGenerarCasesDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Cuadros::CentraConIcono(*this, IDI_TRIANGULACION);
    OnLbnSelchangeListaHojas();
    Cuadros::Habilita(*this, FALSE, {IDOK});
    return TRUE;
}

void CGenerarCasesDlg::OnBnClickedSumarArchivos() {
    UpdateData(TRUE);
    CString nombres;
    if (!Cuadros::PideVariosFicheros(nombres, &m_pPlantilla))
        return;
    if (!Cuadros::SumaNombres(m_ListaHojas, nombres))
        return;
    UpdateData(FALSE);
    Cuadros::HabilitaAceptar(*this, m_ListaHojas);
}

void CGenerarCasesDlg::OnBnClickedRestarArchivos() {
    UpdateData(TRUE);
    Cuadros::RestaSeleccionados(m_ListaHojas);
    UpdateData(FALSE);
    // Kept: the remove button stays enabled until the selection changes.
    Cuadros::HabilitaAceptar(*this, m_ListaHojas);
}

void CGenerarCasesDlg::OnLbnSelchangeListaHojas() {
    Cuadros::Habilita(*this, Cuadros::HaySeleccion(m_ListaHojas), {IDC_GENERAR_CASES_RESTAR});
}

void CGenerarCasesDlg::OnDropFiles(HDROP hDropInfo) {
    Cuadros::SumaSoltados(m_ListaHojas, hDropInfo);
    Cuadros::HabilitaAceptar(*this, m_ListaHojas);
    CDialog::OnDropFiles(hDropInfo); // Kept: no DragFinish, the system gets the handle
}

void CGenerarCasesDlg::OnOK() {
    if (!UpdateData(TRUE))
        return;
    // Kept: neither the text nor the caption is in the language file.
    if (m_ListaHojas.GetCount() == 0)
        return Cuadros::Rechaza(*this, L"No ha seleccionado ning\u00FAn archivo", L"Error");
    Cuadros::RecogeHojas(m_ListaHojas, *m_pFicheros);
    CDialog::OnOK();
}

} // namespace Cotana
