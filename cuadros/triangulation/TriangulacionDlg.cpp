#include "cuadros/triangulation/TriangulacionDlg.h"

#include <vector>

#include "cuadros/frame/Dialogo.h"
#include "cuadros/frame/Listas.h"
#include "cuadros/frame/Numeros.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/StringIds.h"
#include "cuadros/resources/TriangulationIds.h"

namespace Cotana {

namespace {

void PreparaListaCodigos(CListCtrl& lista) {
    Cuadros::PreparaLista(lista, {{IDS_COLUMNA_CODIGO, LVCFMT_LEFT, 100},
                                  {IDS_COLUMNA_NEMOTECNICO, LVCFMT_LEFT, 230}});
}

std::vector<Cuadros::Fila> FilasDe(const CDigiTab& tabla) {
    std::vector<Cuadros::Fila> filas;
    filas.reserve(tabla.Cantidad());
    for (unsigned int i = 0; i < tabla.Cantidad(); ++i)
        filas.emplace_back(tabla[i].GetCodigo(), tabla[i].GetNemotecnico());
    return filas;
}

void Rellena(CListCtrl& lista, const CDigiTab& tabla) {
    int indice = 0;
    for (const Cuadros::Fila& fila : FilasDe(tabla))
        Cuadros::InsertaFila(lista, indice++, fila);
}

CDigiTab Seleccionados(const CListCtrl& lista, const CDigiTab& tabla) {
    CDigiTab elegidos;
    Cuadros::RecorreSeleccion(lista, tabla.Cantidad(),
                              [&](unsigned int i) { elegidos.Inserta(tabla[i], true); });
    return elegidos;
}

/// Table indices of the rows that the user has deselected, in increasing order.
std::vector<unsigned int> Deseleccionados(const CListCtrl& lista, const CDigiTab& tabla) {
    std::vector<unsigned int> indices;
    const int filas = lista.GetItemCount();
    if (lista.GetSelectedCount() == static_cast<UINT>(filas))
        return indices; // as it nearly always is, and no row has to be asked
    for (int fila = 0; fila < filas; ++fila) {
        // Kept: the complement of the bit is never the answer, so that no row is found deselected
        // and every one is selected again after a rebuild.
        if (lista.GetItemState(fila, LVIS_SELECTED) != ~UINT{LVIS_SELECTED})
            continue;
        const CString codigo = lista.GetItemText(fila, 0);
        for (unsigned int i = 0; i < tabla.Cantidad(); ++i) {
            if (tabla[i].ComparaCodigo(codigo)) {
                indices.push_back(i);
                break;
            }
        }
    }
    return indices;
}

} // namespace

CTriangulacionDlg::CTriangulacionDlg(CDataTriangulacion& data, CWnd* padre)
    : CDialog(IDD_TRIANGULACION, padre), m_pData(&data) {}

CTriangulacionDlg::~CTriangulacionDlg() = default;

void CTriangulacionDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    // clang-format off
    DDX_Control(pDX, IDC_TRIANGULACION_CODIGOS,           m_ListaCodigos);
    DDX_Control(pDX, IDC_TRIANGULACION_RUPTURAS,          m_ListaRupturas);
    DDX_Check  (pDX, IDC_TRIANGULACION_USAR_RUPTURAS,     m_pData->m_Rupturas);
    DDX_Check  (pDX, IDC_TRIANGULACION_NO_UNIR_CURVAS,    m_pData->m_NoUnirCurvas);
    DDX_Text   (pDX, IDC_TRIANGULACION_NOMBRE,            m_pData->m_Nombre);
    DDX_Text   (pDX, IDC_TRIANGULACION_LIMITE_INFERIOR,   m_pData->m_LimiteInferior);
    DDX_Text   (pDX, IDC_TRIANGULACION_LIMITE_SUPERIOR,   m_pData->m_LimiteSuperior);
    DDX_Text   (pDX, IDC_TRIANGULACION_DISTANCIA_NO_UNIR, m_pData->m_DistanciaNoUnir);
    DDX_Text   (pDX, IDC_TRIANGULACION_PARAMETRO_EXTRA,   m_pData->m_ParametroExtra);
    DDX_Radio  (pDX, IDC_TRIANGULACION_TIPO_RUPTURA_1,    m_pData->m_TipoRuptura);
    // clang-format on
}

BEGIN_MESSAGE_MAP(CTriangulacionDlg, CDialog)
    ON_BN_CLICKED(IDC_TRIANGULACION_USAR_RUPTURAS, &CTriangulacionDlg::OnCheckRuptura)
    ON_BN_CLICKED(IDC_TRIANGULACION_TODOS_CODIGOS, &CTriangulacionDlg::OnTodosCods)
    ON_BN_CLICKED(IDC_TRIANGULACION_TODAS_RUPTURAS, &CTriangulacionDlg::OnTodosRups)
    ON_BN_CLICKED(IDC_TRIANGULACION_NINGUN_CODIGO, &CTriangulacionDlg::OnNingunoCods)
    ON_BN_CLICKED(IDC_TRIANGULACION_NINGUNA_RUPTURA, &CTriangulacionDlg::OnNingunoRups)
    ON_BN_CLICKED(IDC_TRIANGULACION_NO_UNIR_CURVAS, &CTriangulacionDlg::OnCheckNoUnirCurvas)
    ON_WM_HELPINFO()
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_TRIANGULACION_CODIGOS,
              &CTriangulacionDlg::OnItemchangedListaCodigos)
END_MESSAGE_MAP()

BOOL CTriangulacionDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Cuadros::CentraConIcono(*this, IDI_TRIANGULACION);
    PreparaListaCodigos(m_ListaCodigos);
    PreparaListaCodigos(m_ListaRupturas);
    {
        const Cuadros::ListaSinDibujar quieta(m_ListaCodigos);
        Rellena(m_ListaCodigos, m_pData->m_Codigos);
    }
    UpdateData(FALSE);
    // Kept: the breaklines that the host chose before are discarded. Each row selected here runs
    // OnItemchangedListaCodigos, and after the last one every code is a breakline.
    Cuadros::SeleccionaFilas(m_ListaCodigos, m_pData->m_Codigos.Cantidad(), true);
    OnCheckRuptura();
    OnCheckNoUnirCurvas();
    HabilitaAceptar();
    return TRUE;
}

void CTriangulacionDlg::OnItemchangedListaCodigos(NMHDR* /*pNMHDR*/, LRESULT* pResult) {
    *pResult = 0;
    UpdateData(TRUE);
    if (m_hWnd == nullptr)
        return; // taken away under the prompt: the breaklines of a list that is gone are none
    m_pData->m_CodigosRuptura = Seleccionados(m_ListaCodigos, m_pData->m_Codigos);
    ActualizaRupturas();
    HabilitaAceptar();
}

void CTriangulacionDlg::ActualizaRupturas() {
    UpdateData(TRUE);
    if (m_hWnd == nullptr)
        return;
    const CDigiTab& rupturas = m_pData->m_CodigosRuptura;
    Cuadros::CambiaFilas(m_ListaRupturas, m_RupturasMostradas, FilasDe(rupturas),
                         Deseleccionados(m_ListaRupturas, rupturas));
    UpdateData(FALSE);
}

void CTriangulacionDlg::HabilitaAceptar() {
    Cuadros::Habilita(*this, m_pData->m_CodigosRuptura.Cantidad() != 0, {IDOK});
}

void CTriangulacionDlg::OnCheckRuptura() {
    UpdateData(TRUE);
    Cuadros::Habilita(*this, m_pData->m_Rupturas,
                      {IDC_TRIANGULACION_RUPTURAS, IDC_TRIANGULACION_TODAS_RUPTURAS,
                       IDC_TRIANGULACION_NINGUNA_RUPTURA, IDC_TRIANGULACION_TIPO_RUPTURA_1,
                       IDC_TRIANGULACION_TIPO_RUPTURA_3, IDC_TRIANGULACION_TIPO_RUPTURA_2,
                       IDC_TRIANGULACION_TIPO_RUPTURA_4});
}

void CTriangulacionDlg::OnCheckNoUnirCurvas() {
    UpdateData(TRUE);
    Cuadros::Habilita(*this, m_pData->m_NoUnirCurvas, {IDC_TRIANGULACION_DISTANCIA_NO_UNIR});
}

void CTriangulacionDlg::OnTodosCods() {
    Cuadros::SeleccionaFilas(m_ListaCodigos, m_pData->m_Codigos.Cantidad(), true);
}

void CTriangulacionDlg::OnNingunoCods() {
    Cuadros::SeleccionaFilas(m_ListaCodigos, m_pData->m_Codigos.Cantidad(), false);
}

void CTriangulacionDlg::OnTodosRups() {
    Cuadros::SeleccionaFilas(m_ListaRupturas, m_pData->m_CodigosRuptura.Cantidad(), true);
}

void CTriangulacionDlg::OnNingunoRups() {
    Cuadros::SeleccionaFilas(m_ListaRupturas, m_pData->m_CodigosRuptura.Cantidad(), false);
}

void CTriangulacionDlg::OnOK() {
    if (!UpdateData(TRUE))
        return;
    const CDigiTab codigos = Seleccionados(m_ListaCodigos, m_pData->m_Codigos);
    // Kept: also of a list that is disabled, since breaklines are not used.
    const CDigiTab rupturas = Seleccionados(m_ListaRupturas, m_pData->m_CodigosRuptura);

    if (codigos.Cantidad() == 0)
        return Cuadros::Rechaza(*this, IDS_SIN_CODIGOS);
    if (m_pData->m_LimiteInferior >= m_pData->m_LimiteSuperior)
        return Cuadros::Rechaza(*this, IDS_LIMITES_NO_CRECIENTES);
    // Kept: also where lines are joined and the edit is disabled.
    if (Cuadros::Signo(m_pData->m_DistanciaNoUnir) != 1)
        return Cuadros::Rechaza(*this, IDS_VALOR_NO_POSITIVO);
    if (m_pData->m_Nombre.IsEmpty())
        return Cuadros::Rechaza(*this, IDS_TEXTO_OBLIGATORIO);

    // Kept: a code that was not selected is gone from the host's table.
    m_pData->m_Codigos = codigos;
    m_pData->m_CodigosRuptura = rupturas;
    m_pData->m_CodigosExtra1.clear();
    m_pData->m_CodigosExtra2.clear();
    CDialog::OnOK();
}

BOOL CTriangulacionDlg::OnHelpInfo(HELPINFO* /*pHelpInfo*/) {
    // The framework's own road: the control with the focus is asked first, and the dialog answers
    // with its template number.
    CWnd::OnHelp();
    return TRUE;
}

} // namespace Cotana
