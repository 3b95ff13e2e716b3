#include "cuadros/triangulation/Triangulacion2DDlg.h"

#include "cuadros/frame/Dialogo.h"
#include "cuadros/frame/Listas.h"
#include "cuadros/frame/Numeros.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/ListaClasificaciones.h"

namespace Cotana {

IMPLEMENT_DYNAMIC(CTriangulacion2DDlg, CDialog)

CTriangulacion2DDlg::CTriangulacion2DDlg(std::vector<CInfoClasificacion>& clasificaciones,
                                         double& valor, CString& nombre, int activarCasilla,
                                         CWnd* padre)
    : CDialog(IDD_TRIANGULACION_2D, padre), m_Clasificaciones(clasificaciones),
      m_ActivarCasilla(activarCasilla), m_pNombre(&nombre), m_pValor(&valor) {}

CTriangulacion2DDlg::~CTriangulacion2DDlg() = default;

void CTriangulacion2DDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    // clang-format off
    DDX_Control(pDX, IDC_TRIANGULACION_2D_CLASIFICACIONES, m_ListaClasificaciones);
    DDX_Text   (pDX, IDC_TRIANGULACION_2D_VALOR,           m_TextoValor);
    DDX_Text   (pDX, IDC_TRIANGULACION_2D_NOMBRE,          *m_pNombre);
    DDX_Check  (pDX, IDC_TRIANGULACION_2D_CASILLA,         m_Casilla);
    // clang-format on
}

BEGIN_MESSAGE_MAP(CTriangulacion2DDlg, CDialog)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_TRIANGULACION_2D_CLASIFICACIONES,
              &CTriangulacion2DDlg::OnItemchangedCodigos)
    ON_BN_CLICKED(IDC_TRIANGULACION_2D_NINGUNA, &CTriangulacion2DDlg::OnBnClickedMfcbuttonNone)
    ON_BN_CLICKED(IDC_TRIANGULACION_2D_TODAS, &CTriangulacion2DDlg::OnBnClickedMfcbuttonAll)
END_MESSAGE_MAP()

BOOL CTriangulacion2DDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Cuadros::CentraConIcono(*this, IDI_TRIANGULACION);
    Cuadros::LlenaListaClasificaciones(*this, m_ListaClasificaciones, m_Clasificaciones.size());
    // Kept: a box that may be used starts ticked, whatever m_Casilla was.
    m_Casilla = m_ActivarCasilla != 0;
    if (m_ActivarCasilla == 0)
        Cuadros::Habilita(*this, FALSE, {IDC_TRIANGULACION_2D_CASILLA});
    m_TextoValor = Cuadros::ConDecimales(*m_pValor, 3);
    UpdateData(FALSE);
    HayCambioSeleccion();
    return TRUE;
}

int CTriangulacion2DDlg::ElementoNuevo(int i) {
    return Cuadros::InsertaClasificacion(m_ListaClasificaciones, i,
                                         m_Clasificaciones[static_cast<std::size_t>(i)]);
}

void CTriangulacion2DDlg::ModificaElemento(int i) {
    Cuadros::CompletaClasificacion(m_ListaClasificaciones, i,
                                   m_Clasificaciones[static_cast<std::size_t>(i)]);
}

void CTriangulacion2DDlg::HayCambioSeleccion() {
    Cuadros::Habilita(*this, Cuadros::HaySeleccion(m_ListaClasificaciones), {IDOK});
}

void CTriangulacion2DDlg::OnItemchangedCodigos(NMHDR* /*pNMHDR*/, LRESULT* pResult) {
    HayCambioSeleccion();
    *pResult = 0;
}

void CTriangulacion2DDlg::OnBnClickedMfcbuttonAll() {
    Cuadros::SeleccionaFilas(m_ListaClasificaciones,
                             static_cast<unsigned int>(m_Clasificaciones.size()), true);
}

void CTriangulacion2DDlg::OnBnClickedMfcbuttonNone() {
    Cuadros::SeleccionaFilas(m_ListaClasificaciones,
                             static_cast<unsigned int>(m_Clasificaciones.size()), false);
}

void CTriangulacion2DDlg::OnOK() {
    UpdateData(TRUE);
    // Kept: the vector is not emptied first; the rows come behind what it held.
    Cuadros::AgregaSeleccion(m_ListaClasificaciones, m_Seleccion);
    // Kept: a text that is no number is 0, without a message.
    *m_pValor = Cuadros::LeeNumero(m_TextoValor);
    CDialog::OnOK();
}

} // namespace Cotana
