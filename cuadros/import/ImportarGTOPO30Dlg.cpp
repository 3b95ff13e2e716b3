#include "cuadros/import/ImportarGTOPO30Dlg.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "cuadros/frame/Dialogo.h"
#include "cuadros/frame/Numeros.h"
#include "cuadros/import/CuentaNodos.h"
#include "cuadros/import/Elipsoides.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/ImportIds.h"

namespace {

/// The projection that has a zone and an ellipsoid.
constexpr int ProyeccionUTM = 1;

/// What is preselected for the ellipsoid of a user: WGS-84.
constexpr int IndicePorDefecto = 25;

using Sexagesimal = CImportarGTOPO30Dlg::Sexagesimal;

/// The texts of an angle in degrees.
Sexagesimal ASexagesimal(double grados) {
    const int enteros = Cuadros::Trunca(grados);
    const double minutos = std::abs(grados - enteros) * 60;
    const int minutosEnteros = Cuadros::Trunca(minutos);
    const bool menosCero = enteros == 0 && Cuadros::Signo(grados) == -1;
    return {menosCero ? CString(L"-0") : Cuadros::Entero(enteros), Cuadros::Entero(minutosEnteros),
            Cuadros::ConDecimales((minutos - minutosEnteros) * 60, 1)};
}

/// The angle of these texts, in degrees. The minutes and seconds have the sign that the first
/// character of the degrees gives.
double AGrados(const Sexagesimal& angulo) {
    const double signo = angulo.grados.Left(1) == L"-" ? -1 : 1;
    return Cuadros::LeeEntero(angulo.grados) + (Cuadros::LeeNumero(angulo.segundos) / 3600.0 +
                                                Cuadros::LeeEntero(angulo.minutos) / 60.0) *
                                                   signo;
}

} // namespace

CImportarGTOPO30Dlg::CImportarGTOPO30Dlg(CDataImportarGTOPO30& datos, int mostrar, CWnd* padre)
    : CDialog(IDD_IMPORTAR_GTOPO30, padre), m_pData(&datos), m_Mostrar(mostrar) {}

CImportarGTOPO30Dlg::~CImportarGTOPO30Dlg() = default;

void CImportarGTOPO30Dlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    // clang-format off
    DDX_Control(pDX, IDC_IMPORTAR_GTOPO30_PROYECCION,         m_TipoProyeccion);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_PUNTOS_IMPORTAR,    m_PuntosImportar);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_PUNTOS_FICHERO,     m_PuntosFichero);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_Y_MAXIMA_G,         m_YMaxima.grados);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_FICHERO_Y_MAXIMA_G, m_FicheroYMaxima.grados);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_Y_MINIMA_G,         m_YMinima.grados);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_FICHERO_Y_MINIMA_G, m_FicheroYMinima.grados);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_X_MAXIMA_G,         m_XMaxima.grados);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_FICHERO_X_MAXIMA_G, m_FicheroXMaxima.grados);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_X_MINIMA_G,         m_XMinima.grados);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_FICHERO_X_MINIMA_G, m_FicheroXMinima.grados);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_Y_MAXIMA_M,         m_YMaxima.minutos);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_FICHERO_Y_MAXIMA_M, m_FicheroYMaxima.minutos);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_Y_MINIMA_M,         m_YMinima.minutos);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_FICHERO_Y_MINIMA_M, m_FicheroYMinima.minutos);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_X_MAXIMA_M,         m_XMaxima.minutos);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_FICHERO_X_MAXIMA_M, m_FicheroXMaxima.minutos);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_X_MINIMA_M,         m_XMinima.minutos);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_FICHERO_X_MINIMA_M, m_FicheroXMinima.minutos);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_Y_MAXIMA_S,         m_YMaxima.segundos);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_FICHERO_Y_MAXIMA_S, m_FicheroYMaxima.segundos);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_Y_MINIMA_S,         m_YMinima.segundos);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_FICHERO_Y_MINIMA_S, m_FicheroYMinima.segundos);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_X_MAXIMA_S,         m_XMaxima.segundos);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_FICHERO_X_MAXIMA_S, m_FicheroXMaxima.segundos);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_X_MINIMA_S,         m_XMinima.segundos);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_FICHERO_X_MINIMA_S, m_FicheroXMinima.segundos);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_PASO,               m_Paso);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_RAZON,              m_Razon);
    DDX_Text   (pDX, IDC_IMPORTAR_GTOPO30_HUSO,               m_Huso);
    DDX_CBIndex(pDX, IDC_IMPORTAR_GTOPO30_ELIPSOIDE,          m_IndiceElipsoide);
    // clang-format on
}

BEGIN_MESSAGE_MAP(CImportarGTOPO30Dlg, CDialog)
    ON_EN_KILLFOCUS(IDC_IMPORTAR_GTOPO30_Y_MAXIMA_G, &CImportarGTOPO30Dlg::OnCalcula)
    ON_EN_KILLFOCUS(IDC_IMPORTAR_GTOPO30_Y_MAXIMA_M, &CImportarGTOPO30Dlg::OnCalcula)
    ON_EN_KILLFOCUS(IDC_IMPORTAR_GTOPO30_Y_MAXIMA_S, &CImportarGTOPO30Dlg::OnCalcula)
    ON_EN_KILLFOCUS(IDC_IMPORTAR_GTOPO30_Y_MINIMA_G, &CImportarGTOPO30Dlg::OnCalcula)
    ON_EN_KILLFOCUS(IDC_IMPORTAR_GTOPO30_Y_MINIMA_M, &CImportarGTOPO30Dlg::OnCalcula)
    ON_EN_KILLFOCUS(IDC_IMPORTAR_GTOPO30_Y_MINIMA_S, &CImportarGTOPO30Dlg::OnCalcula)
    ON_EN_KILLFOCUS(IDC_IMPORTAR_GTOPO30_X_MAXIMA_G, &CImportarGTOPO30Dlg::OnCalcula)
    ON_EN_KILLFOCUS(IDC_IMPORTAR_GTOPO30_X_MAXIMA_M, &CImportarGTOPO30Dlg::OnCalcula)
    ON_EN_KILLFOCUS(IDC_IMPORTAR_GTOPO30_X_MAXIMA_S, &CImportarGTOPO30Dlg::OnCalcula)
    ON_EN_KILLFOCUS(IDC_IMPORTAR_GTOPO30_X_MINIMA_G, &CImportarGTOPO30Dlg::OnCalcula)
    ON_EN_KILLFOCUS(IDC_IMPORTAR_GTOPO30_X_MINIMA_M, &CImportarGTOPO30Dlg::OnCalcula)
    ON_EN_KILLFOCUS(IDC_IMPORTAR_GTOPO30_X_MINIMA_S, &CImportarGTOPO30Dlg::OnCalcula)
    ON_EN_KILLFOCUS(IDC_IMPORTAR_GTOPO30_RAZON, &CImportarGTOPO30Dlg::OnCalcula)
    ON_CBN_SELCHANGE(IDC_IMPORTAR_GTOPO30_PROYECCION,
                     &CImportarGTOPO30Dlg::OnSelchangeComboTipoProyeccion)
    ON_WM_HELPINFO()
    ON_COMMAND(ID_HELP, &CImportarGTOPO30Dlg::OnHelp)
END_MESSAGE_MAP()

BOOL CImportarGTOPO30Dlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Cuadros::CentraConIcono(*this, IDI_IMPORTAR_REJILLA);
    if (m_pData->m_TipoProyeccion > 2) // kept: -1 stays, and selects none
        m_pData->m_TipoProyeccion = 0;
    m_TipoProyeccion.SetCurSel(m_pData->m_TipoProyeccion);
    // Kept: the zone of the record is not asked; the one of the tile's middle is proposed.
    const auto& [maximoFichero, minimoFichero] = m_pData->m_ExtensionFichero;
    m_Huso = Cuadros::Entero(
        Cuadros::Trunca(((minimoFichero.m_X + maximoFichero.m_X) * 0.5 + 186.0) / 6.0));
    m_PuntosFichero = Cuadros::Entero(m_pData->m_PuntosFichero);
    m_PuntosImportar = Cuadros::Entero(m_pData->m_PuntosImportar);
    m_Razon = Cuadros::Entero(m_pData->m_Razon);
    // An arc of the equator, in kilometres.
    m_Paso = Cuadros::ConDecimales(m_pData->m_Paso.m_X * 3.141592653589793 / 180.0 *
                                       m_pData->m_Elipsoide.GetSemieje() / 1000.0,
                                   3);
    m_FicheroYMaxima = ASexagesimal(maximoFichero.m_Y);
    m_FicheroXMaxima = ASexagesimal(maximoFichero.m_X);
    m_FicheroYMinima = ASexagesimal(minimoFichero.m_Y);
    m_FicheroXMinima = ASexagesimal(minimoFichero.m_X);
    const auto& [maximo, minimo] = m_pData->m_Extension;
    m_YMaxima = ASexagesimal(maximo.m_Y);
    m_XMaxima = ASexagesimal(maximo.m_X);
    m_YMinima = ASexagesimal(minimo.m_Y);
    m_XMinima = ASexagesimal(minimo.m_X);

    auto& elipsoides = Cuadros::Control<CComboBox>(*this, IDC_IMPORTAR_GTOPO30_ELIPSOIDE);
    for (std::size_t fila = 1; fila < Cuadros::Elipsoides().size(); ++fila)
        elipsoides.AddString(Cuadros::Elipsoides()[fila].GetNombre());
    const int indice = m_pData->m_Elipsoide.GetIndice();
    m_IndiceElipsoide = indice >= 1 ? indice - 1 : IndicePorDefecto;
    elipsoides.SetCurSel(m_IndiceElipsoide);
    UpdateData(FALSE);
    Cuadros::Muestra(*this, m_Mostrar,
                     {IDC_IMPORTAR_GTOPO30_PROYECCION, IDC_IMPORTAR_GTOPO30_HUSO,
                      IDC_IMPORTAR_GTOPO30_ROTULO_PROYECCION, IDC_IMPORTAR_GTOPO30_ROTULO_HUSO,
                      IDC_IMPORTAR_GTOPO30_ELIPSOIDE, IDC_IMPORTAR_GTOPO30_ROTULO_ELIPSOIDE});
    OnSelchangeComboTipoProyeccion();
    // Kept: the rectangle of the record is that of the texts from the start, to a tenth of a
    // second.
    OnCalcula();
    return TRUE;
}

void CImportarGTOPO30Dlg::OnCalcula() {
    UpdateData(TRUE);
    auto& [maximo, minimo] = m_pData->m_Extension;
    minimo.m_Y = AGrados(m_YMinima);
    minimo.m_X = AGrados(m_XMinima);
    maximo.m_Y = AGrados(m_YMaxima);
    maximo.m_X = AGrados(m_XMaxima);
    m_pData->m_Razon = Cuadros::LeeEntero(m_Razon);

    const auto& [maximoFichero, minimoFichero] = m_pData->m_ExtensionFichero;
    const double yMinima = std::max(minimo.m_Y, minimoFichero.m_Y);
    const double yMaxima = std::min(maximo.m_Y, maximoFichero.m_Y);
    const double xMinima = std::max(minimo.m_X, minimoFichero.m_X);
    const double xMaxima = std::min(maximo.m_X, maximoFichero.m_X);
    // Kept: a rectangle outside of the tile has nodes, too: a negative side counts as a positive
    // one.
    const Cotana::CCoor3D<double>& paso = m_pData->m_Paso;
    m_pData->m_PuntosImportar =
        Cuadros::CuentaNodos((xMaxima - xMinima) / (m_pData->m_Razon * paso.m_X),
                             (yMaxima - yMinima) / (m_pData->m_Razon * paso.m_Y));
    m_PuntosImportar = Cuadros::Entero(m_pData->m_PuntosImportar);
    UpdateData(FALSE);
}

void CImportarGTOPO30Dlg::OnSelchangeComboTipoProyeccion() {
    m_pData->m_TipoProyeccion = m_TipoProyeccion.GetCurSel();
    Cuadros::Habilita(*this, m_pData->m_TipoProyeccion == ProyeccionUTM,
                      {IDC_IMPORTAR_GTOPO30_HUSO, IDC_IMPORTAR_GTOPO30_ELIPSOIDE});
}

void CImportarGTOPO30Dlg::OnOK() {
    // Kept: the rectangle is that of the last count; Enter in one of its edits leaves it at that.
    UpdateData(TRUE);
    m_pData->m_Huso = Cuadros::LeeEntero(m_Huso);
    m_pData->m_TipoProyeccion = m_TipoProyeccion.GetCurSel();
    // Without a selection (-1) it is row 0, the one that a user has defined.
    const auto& elipsoides = Cuadros::Elipsoides();
    const auto fila = static_cast<std::size_t>(m_IndiceElipsoide + 1);
    m_pData->m_Elipsoide = elipsoides[fila < elipsoides.size() ? fila : 0];
    CDialog::OnOK();
}

void CImportarGTOPO30Dlg::OnHelp() {
    Cuadros::AbreAyuda(IDD_IMPORTAR_GTOPO30);
}

BOOL CImportarGTOPO30Dlg::OnHelpInfo(HELPINFO* /*pHelpInfo*/) {
    OnHelp();
    return TRUE;
}
