#include "cuadros/import/ImportarGridDlg.h"

#include <algorithm>

#include "cuadros/frame/Dialogo.h"
#include "cuadros/frame/Numeros.h"
#include "cuadros/import/CuentaNodos.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/ImportIds.h"

namespace {

CString EnMetros(double coordenada) {
    return Cuadros::ConDecimales(coordenada, 3);
}

} // namespace

CImportarGridDlg::CImportarGridDlg(CDataImportarGrid& datos, CWnd* padre)
    : CDialog(IDD_IMPORTAR_GRID, padre), m_pData(&datos) {}

CImportarGridDlg::~CImportarGridDlg() = default;

void CImportarGridDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    // clang-format off
    DDX_Text(pDX, IDC_IMPORTAR_GRID_PUNTOS_IMPORTAR,  m_pData->m_PuntosImportar);
    DDX_Text(pDX, IDC_IMPORTAR_GRID_PUNTOS_FICHERO,   m_pData->m_PuntosFichero);
    DDX_Text(pDX, IDC_IMPORTAR_GRID_FICHERO_X_MINIMA, m_FicheroXMinima);
    DDX_Text(pDX, IDC_IMPORTAR_GRID_FICHERO_X_MAXIMA, m_FicheroXMaxima);
    DDX_Text(pDX, IDC_IMPORTAR_GRID_FICHERO_Y_MINIMA, m_FicheroYMinima);
    DDX_Text(pDX, IDC_IMPORTAR_GRID_FICHERO_Y_MAXIMA, m_FicheroYMaxima);
    DDX_Text(pDX, IDC_IMPORTAR_GRID_X_MINIMA,         m_XMinima);
    DDX_Text(pDX, IDC_IMPORTAR_GRID_X_MAXIMA,         m_XMaxima);
    DDX_Text(pDX, IDC_IMPORTAR_GRID_Y_MINIMA,         m_YMinima);
    DDX_Text(pDX, IDC_IMPORTAR_GRID_Y_MAXIMA,         m_YMaxima);
    DDX_Text(pDX, IDC_IMPORTAR_GRID_PASO,             m_Paso);
    DDX_Text(pDX, IDC_IMPORTAR_GRID_RAZON,            m_pData->m_Razon);
    // clang-format on
}

BEGIN_MESSAGE_MAP(CImportarGridDlg, CDialog)
    ON_EN_CHANGE(IDC_IMPORTAR_GRID_X_MINIMA, &CImportarGridDlg::OnCalcula)
    ON_EN_CHANGE(IDC_IMPORTAR_GRID_X_MAXIMA, &CImportarGridDlg::OnCalcula)
    ON_EN_CHANGE(IDC_IMPORTAR_GRID_Y_MINIMA, &CImportarGridDlg::OnCalcula)
    ON_EN_CHANGE(IDC_IMPORTAR_GRID_Y_MAXIMA, &CImportarGridDlg::OnCalcula)
    ON_EN_CHANGE(IDC_IMPORTAR_GRID_RAZON, &CImportarGridDlg::OnCalcula)
    ON_WM_HELPINFO()
    ON_COMMAND(ID_HELP, &CImportarGridDlg::OnHelp)
END_MESSAGE_MAP()

BOOL CImportarGridDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Cuadros::CentraConIcono(*this, IDI_IMPORTAR_REJILLA);
    m_FicheroXMinima = EnMetros(m_pData->m_ExtensionFichero.m_Minimo.m_X);
    m_FicheroXMaxima = EnMetros(m_pData->m_ExtensionFichero.m_Maximo.m_X);
    m_FicheroYMinima = EnMetros(m_pData->m_ExtensionFichero.m_Minimo.m_Y);
    m_FicheroYMaxima = EnMetros(m_pData->m_ExtensionFichero.m_Maximo.m_Y);
    m_XMinima = EnMetros(m_pData->m_Extension.m_Minimo.m_X);
    m_XMaxima = EnMetros(m_pData->m_Extension.m_Maximo.m_X);
    m_YMinima = EnMetros(m_pData->m_Extension.m_Minimo.m_Y);
    m_YMaxima = EnMetros(m_pData->m_Extension.m_Maximo.m_Y);
    m_Paso = EnMetros(m_pData->m_Paso.m_X);
    UpdateData(FALSE);
    OnCalcula();
    return TRUE;
}

void CImportarGridDlg::OnCalcula() {
    UpdateData(TRUE);
    const auto& [maximo, minimo] = m_pData->m_ExtensionFichero;
    const double xMinima = std::max(Cuadros::LeeNumero(m_XMinima), minimo.m_X);
    const double xMaxima = std::min(maximo.m_X, Cuadros::LeeNumero(m_XMaxima));
    const double yMinima = std::max(Cuadros::LeeNumero(m_YMinima), minimo.m_Y);
    const double yMaxima = std::min(maximo.m_Y, Cuadros::LeeNumero(m_YMaxima));
    // Kept: the spacing in X of the record serves both axes; one that was typed counts after OK.
    const double paso = m_pData->m_Razon * m_pData->m_Paso.m_X;
    m_pData->m_PuntosImportar = Cuadros::CuentaNodos((std::max(xMinima, xMaxima) - xMinima) / paso,
                                                     (std::max(yMinima, yMaxima) - yMinima) / paso);
    UpdateData(FALSE);
}

void CImportarGridDlg::OnOK() {
    // Kept: an integer that does not convert is refused again below, when the texts of the last
    // exchange are in the record already.
    UpdateData(TRUE);
    m_pData->m_Extension.m_Minimo.m_X = Cuadros::LeeNumero(m_XMinima);
    m_pData->m_Extension.m_Maximo.m_X = Cuadros::LeeNumero(m_XMaxima);
    m_pData->m_Extension.m_Minimo.m_Y = Cuadros::LeeNumero(m_YMinima);
    m_pData->m_Extension.m_Maximo.m_Y = Cuadros::LeeNumero(m_YMaxima);
    m_pData->m_Paso.m_X = Cuadros::LeeNumero(m_Paso); // kept: that in Y stays as it was
    CDialog::OnOK();
}

void CImportarGridDlg::OnHelp() {
    Cuadros::AbreAyuda(IDD_IMPORTAR_GRID);
}

BOOL CImportarGridDlg::OnHelpInfo(HELPINFO* /*pHelpInfo*/) {
    OnHelp();
    return TRUE;
}
