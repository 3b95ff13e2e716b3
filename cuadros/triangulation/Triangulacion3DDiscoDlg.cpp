#include "cuadros/triangulation/Triangulacion3DDiscoDlg.h"

#include "cuadros/frame/Dialogo.h"
#include "cuadros/frame/Peticiones.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/StringIds.h"
#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/ListaHojas.h"

namespace Cotana {

IMPLEMENT_DYNAMIC(CTriangulacion3DDiscoDlg, CDialog)

CTriangulacion3DDiscoDlg::CTriangulacion3DDiscoDlg(std::vector<CString>& ficheros,
                                                   CDocTemplate* plantilla, double& valor,
                                                   int& opcion, CWnd* padre)
    : CDialog(IDD_TRIANGULACION_3D_DISCO, padre), m_pValor(&valor), m_pOpcion(&opcion),
      m_pFicheros(&ficheros), m_pPlantilla(plantilla) {}

CTriangulacion3DDiscoDlg::~CTriangulacion3DDiscoDlg() = default;

void CTriangulacion3DDiscoDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    // clang-format off
    DDX_Text   (pDX, IDC_TRIANGULACION_3D_DISCO_VALOR,    *m_pValor);
    DDX_Radio  (pDX, IDC_TRIANGULACION_3D_DISCO_OPCION_1, *m_pOpcion);
    DDX_Control(pDX, IDC_TRIANGULACION_3D_DISCO_HOJAS,    m_ListaHojas);
    // clang-format on
}

BEGIN_MESSAGE_MAP(CTriangulacion3DDiscoDlg, CDialog)
    ON_BN_CLICKED(IDC_TRIANGULACION_3D_DISCO_SUMAR, &CTriangulacion3DDiscoDlg::OnSumarArchivos)
    ON_BN_CLICKED(IDC_TRIANGULACION_3D_DISCO_RESTAR, &CTriangulacion3DDiscoDlg::OnRestarArchivos)
    ON_LBN_SELCHANGE(IDC_TRIANGULACION_3D_DISCO_HOJAS,
                     &CTriangulacion3DDiscoDlg::OnSelchangeListaHojas)
    ON_WM_DROPFILES()
END_MESSAGE_MAP()

BOOL CTriangulacion3DDiscoDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Cuadros::CentraConIcono(*this, IDI_TRIANGULACION);
    OnSelchangeListaHojas();
    Cuadros::Habilita(*this, FALSE, {IDOK});
    return TRUE;
}

void CTriangulacion3DDiscoDlg::OnSumarArchivos() {
    UpdateData(TRUE);
    CString nombres;
    if (!Cuadros::PideVariosFicheros(nombres, &m_pPlantilla))
        return;
    if (!Cuadros::SumaNombres(m_ListaHojas, nombres))
        return;
    UpdateData(FALSE);
    Cuadros::HabilitaAceptar(*this, m_ListaHojas);
}

void CTriangulacion3DDiscoDlg::OnRestarArchivos() {
    UpdateData(TRUE);
    Cuadros::RestaSeleccionados(m_ListaHojas);
    UpdateData(FALSE);
    // Kept: the remove button stays enabled until the selection changes.
    Cuadros::HabilitaAceptar(*this, m_ListaHojas);
}

void CTriangulacion3DDiscoDlg::OnSelchangeListaHojas() {
    Cuadros::Habilita(*this, Cuadros::HaySeleccion(m_ListaHojas),
                      {IDC_TRIANGULACION_3D_DISCO_RESTAR});
}

void CTriangulacion3DDiscoDlg::OnDropFiles(HDROP hDropInfo) {
    Cuadros::SumaSoltados(m_ListaHojas, hDropInfo);
    Cuadros::HabilitaAceptar(*this, m_ListaHojas);
    CDialog::OnDropFiles(hDropInfo); // Kept: no DragFinish, the system gets the handle
}

void CTriangulacion3DDiscoDlg::OnOK() {
    if (!UpdateData(TRUE))
        return;
    // Kept: the caption is not that of the other messages.
    if (m_ListaHojas.GetCount() == 0)
        return Cuadros::Rechaza(*this, Cuadros::Texto(IDS_SIN_FICHEROS), L"Error");
    Cuadros::RecogeHojas(m_ListaHojas, *m_pFicheros);
    CDialog::OnOK();
}

} // namespace Cotana
