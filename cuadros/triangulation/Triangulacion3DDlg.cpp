#include "cuadros/triangulation/Triangulacion3DDlg.h"

#include "cuadros/frame/Dialogo.h"
#include "cuadros/frame/Listas.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/ListaClasificaciones.h"

namespace Cotana {

IMPLEMENT_DYNAMIC(CTriangulacion3DDlg, CDialog)

CTriangulacion3DDlg::CTriangulacion3DDlg(std::vector<CInfoClasificacion>& clasificaciones,
                                         double& valor, int& entero, int activarCasilla,
                                         CWnd* padre)
    : CDialog(IDD_TRIANGULACION_3D, padre), m_Clasificaciones(clasificaciones),
      m_ActivarCasilla(activarCasilla), m_pValor(&valor), m_pEntero(&entero) {}

CTriangulacion3DDlg::~CTriangulacion3DDlg() = default;

void CTriangulacion3DDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    // clang-format off
    DDX_Control(pDX, IDC_TRIANGULACION_3D_CLASIFICACIONES, m_ListaClasificaciones);
    DDX_Text   (pDX, IDC_TRIANGULACION_3D_VALOR,           *m_pValor);
    DDX_Check  (pDX, IDC_TRIANGULACION_3D_ENTERO,          *m_pEntero);
    DDX_Check  (pDX, IDC_TRIANGULACION_3D_CASILLA,         m_Casilla);
    // clang-format on
}

BEGIN_MESSAGE_MAP(CTriangulacion3DDlg, CDialog)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_TRIANGULACION_3D_CLASIFICACIONES,
              &CTriangulacion3DDlg::OnItemchangedCodigos)
    ON_BN_CLICKED(IDC_TRIANGULACION_3D_NINGUNA, &CTriangulacion3DDlg::OnBnClickedMfcbuttonNone)
    ON_BN_CLICKED(IDC_TRIANGULACION_3D_TODAS, &CTriangulacion3DDlg::OnBnClickedMfcbuttonAll)
END_MESSAGE_MAP()

BOOL CTriangulacion3DDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Cuadros::CentraConIcono(*this, IDI_TRIANGULACION);
    Cuadros::LlenaListaClasificaciones(*this, m_ListaClasificaciones, m_Clasificaciones.size());
    // Kept: a box that may be used starts ticked, whatever m_Casilla was.
    m_Casilla = m_ActivarCasilla != 0;
    if (m_ActivarCasilla == 0)
        Cuadros::Habilita(*this, FALSE, {IDC_TRIANGULACION_3D_CASILLA});
    UpdateData(FALSE);
    HayCambioSeleccion();
    return TRUE;
}

int CTriangulacion3DDlg::ElementoNuevo(int i) {
    return Cuadros::InsertaClasificacion(m_ListaClasificaciones, i,
                                         m_Clasificaciones[static_cast<std::size_t>(i)]);
}

void CTriangulacion3DDlg::ModificaElemento(int i) {
    Cuadros::CompletaClasificacion(m_ListaClasificaciones, i,
                                   m_Clasificaciones[static_cast<std::size_t>(i)]);
}

void CTriangulacion3DDlg::HayCambioSeleccion() {
    Cuadros::Habilita(*this, Cuadros::HaySeleccion(m_ListaClasificaciones), {IDOK});
}

void CTriangulacion3DDlg::OnItemchangedCodigos(NMHDR* /*pNMHDR*/, LRESULT* pResult) {
    HayCambioSeleccion();
    *pResult = 0;
}

void CTriangulacion3DDlg::OnBnClickedMfcbuttonAll() {
    Cuadros::SeleccionaFilas(m_ListaClasificaciones,
                             static_cast<unsigned int>(m_Clasificaciones.size()), true);
}

void CTriangulacion3DDlg::OnBnClickedMfcbuttonNone() {
    Cuadros::SeleccionaFilas(m_ListaClasificaciones,
                             static_cast<unsigned int>(m_Clasificaciones.size()), false);
}

void CTriangulacion3DDlg::OnOK() {
    if (!UpdateData(TRUE))
        return;
    // Kept: the vector is not emptied first.
    Cuadros::AgregaSeleccion(m_ListaClasificaciones, m_Seleccion);
    CDialog::OnOK();
}

} // namespace Cotana
