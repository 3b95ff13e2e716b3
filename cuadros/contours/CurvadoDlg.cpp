#include "cuadros/contours/CurvadoDlg.h"

#include <afxcmn.h>

#include <cotana/dialogos_dibujo/CurvadoAvanzadoDlg.h>

#include "cuadros/contours/CurvadoCodigosDlg.h"
#include "cuadros/frame/Dialogo.h"
#include "cuadros/frame/Numeros.h"
#include "cuadros/frame/Peticiones.h"
#include "cuadros/resources/ContoursIds.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/StringIds.h"

namespace {

constexpr int NivelMinimo = 1;
constexpr int NivelMaximo = 10;

/// The type of smoothing whose level is checked.
constexpr int SuavizadoConNivel = 2;

/// The advanced values in metres, for each unit of the scale's denominator: 0.04 and 0.2 mm on
/// paper.
constexpr double Avanzado1PorEscala = 0.00004;
constexpr double Avanzado2PorEscala = 0.0002;

CComboBox& TiposSuavizado(const CWnd& dialogo) {
    return Cuadros::Control<CComboBox>(dialogo, IDC_CURVADO_TIPO_SUAVIZADO);
}

} // namespace

CCurvadoDlg::CCurvadoDlg(Cotana::CDataCurvado& data, CDocTemplate* plantilla, double cotaMinima,
                         double cotaMaxima, int extras, CWnd* padre)
    : CDialog(IDD_CURVADO, padre), m_pData(&data), m_pPlantilla(plantilla),
      m_CotaMinimaModelo(cotaMinima), m_CotaMaximaModelo(cotaMaxima), m_Extras(extras) {}

CCurvadoDlg::~CCurvadoDlg() = default;

void CCurvadoDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    // An exchange ends at the first number that it refuses. So the boxes and texts, which it never
    // refuses, come first, and then the scale: boxes, file name and scale are read in any case.
    // clang-format off
    DDX_Check(pDX, IDC_CURVADO_TEXTO_CURVAS,          m_pData->m_TextoCurvas);
    DDX_Check(pDX, IDC_CURVADO_LIMITE,                m_pData->m_Limite);
    DDX_Check(pDX, IDC_CURVADO_OPCION_SUAVIZADO,      m_pData->m_OpcionSuavizado);
    DDX_Check(pDX, IDC_CURVADO_OPCION_1,              m_pData->m_Opcion1);
    DDX_Check(pDX, IDC_CURVADO_RESPETAR_CURVAS,       m_pData->m_RespetarCurvas);
    DDX_Check(pDX, IDC_CURVADO_RANGO_COTA,            m_pData->m_RangoCota);
    DDX_Check(pDX, IDC_CURVADO_OPCION_TEXTO,          m_pData->m_OpcionTexto);
    DDX_Text (pDX, IDC_CURVADO_CURVAS_A_RESPETAR_1,   m_pData->m_CurvasARespetar1);
    DDX_Text (pDX, IDC_CURVADO_CURVAS_A_RESPETAR_2,   m_pData->m_CurvasARespetar2);
    DDX_Text (pDX, IDC_CURVADO_FICHERO_LIMITE,        m_pData->m_FicheroLimite);
    DDX_Text (pDX, IDC_CURVADO_ESCALA,                m_pData->m_Escala);
    DDX_Text (pDX, IDC_CURVADO_EQUIDISTANCIA,         m_pData->m_Equidistancia);
    DDX_Text (pDX, IDC_CURVADO_EQUIDISTANCIA_MAESTRA, m_pData->m_EquidistanciaMaestra);
    DDX_Text (pDX, IDC_CURVADO_TEXTO_VALOR_2,         m_pData->m_TextoValor2);
    DDX_Text (pDX, IDC_CURVADO_TEXTO_VALOR_1,         m_pData->m_TextoValor1);
    DDX_Text (pDX, IDC_CURVADO_COTA_MINIMA,           m_pData->m_CotaMinima);
    DDX_Text (pDX, IDC_CURVADO_TEXTO_ENTERO,          m_pData->m_TextoEntero);
    DDX_Text (pDX, IDC_CURVADO_COTA_MAXIMA,           m_pData->m_CotaMaxima);
    DDX_Text (pDX, IDC_CURVADO_NIVEL_SUAVIZADO,       m_pData->m_NivelSuavizado);
    // clang-format on
}

BEGIN_MESSAGE_MAP(CCurvadoDlg, CDialog)
    ON_BN_CLICKED(IDC_CURVADO_TEXTO_CURVAS, &CCurvadoDlg::OnCheckTextoCurvas)
    ON_BN_CLICKED(IDC_CURVADO_BUSCAR, &CCurvadoDlg::OnBuscar)
    ON_BN_CLICKED(IDC_CURVADO_LIMITE, &CCurvadoDlg::OnCheckLimite)
    ON_BN_CLICKED(IDC_CURVADO_AVANZADO, &CCurvadoDlg::OnAvanzado)
    ON_EN_CHANGE(IDC_CURVADO_ESCALA, &CCurvadoDlg::OnChangeEscalaCurvado)
    ON_BN_CLICKED(IDC_CURVADO_CODIGOS, &CCurvadoDlg::OnBnClickedCodigosCurvas)
    ON_CBN_SELCHANGE(IDC_CURVADO_TIPO_SUAVIZADO, &CCurvadoDlg::OnCbnSelchangeTipoSuavizado)
    ON_BN_CLICKED(IDC_CURVADO_RESPETAR_CURVAS, &CCurvadoDlg::OnCheckRespetarCurvas)
    ON_BN_CLICKED(IDC_CURVADO_RANGO_COTA, &CCurvadoDlg::OnCheckRangoCota)
    ON_WM_HELPINFO()
    ON_COMMAND(ID_HELP, &CCurvadoDlg::OnHelp)
END_MESSAGE_MAP()

BOOL CCurvadoDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Cuadros::CentraConIcono(*this, IDI_CURVADO);
    Cuadros::Control<CSpinButtonCtrl>(*this, IDC_CURVADO_NIVEL_FLECHAS)
        .SetRange(NivelMinimo, NivelMaximo);
    TiposSuavizado(*this).SetCurSel(m_pData->m_TipoSuavizado);
    Cuadros::Muestra(
        *this, m_Extras,
        {IDC_CURVADO_GRUPO_SUAVIZADO, IDC_CURVADO_TIPO_SUAVIZADO, IDC_CURVADO_ROTULO_TIPO_SUAVIZADO,
         IDC_CURVADO_ROTULO_NIVEL, IDC_CURVADO_NIVEL_SUAVIZADO, IDC_CURVADO_NIVEL_FLECHAS,
         IDC_CURVADO_OPCION_SUAVIZADO, IDC_CURVADO_OPCION_1, IDC_CURVADO_RESPETAR_CURVAS,
         IDC_CURVADO_CURVAS_A_RESPETAR_1, IDC_CURVADO_CURVAS_A_RESPETAR_2,
         IDC_CURVADO_ROTULO_RESPETAR_1, IDC_CURVADO_ROTULO_RESPETAR_2});
    SetDlgItemText(IDC_CURVADO_COTA_MINIMA_MODELO, Cuadros::ConDecimales(m_CotaMinimaModelo, 2));
    SetDlgItemText(IDC_CURVADO_COTA_MAXIMA_MODELO, Cuadros::ConDecimales(m_CotaMaximaModelo, 2));
    UpdateData(FALSE);
    OnCheckRangoCota();
    OnCheckRespetarCurvas();
    OnCheckTextoCurvas();
    OnCheckLimite();
    OnCbnSelchangeTipoSuavizado();
    return TRUE;
}

void CCurvadoDlg::OnCheckTextoCurvas() {
    UpdateData(TRUE);
    Cuadros::Habilita(*this, m_pData->m_TextoCurvas,
                      {IDC_CURVADO_TEXTO_VALOR_1, IDC_CURVADO_TEXTO_VALOR_2,
                       IDC_CURVADO_TEXTO_ENTERO, IDC_CURVADO_OPCION_TEXTO});
}

void CCurvadoDlg::OnBuscar() {
    UpdateData(TRUE);
    if (Cuadros::PideFicheroAbrir(m_pData->m_FicheroLimite, &m_pPlantilla))
        UpdateData(FALSE);
}

void CCurvadoDlg::OnCheckLimite() {
    UpdateData(TRUE);
    Cuadros::Habilita(*this, m_pData->m_Limite, {IDC_CURVADO_FICHERO_LIMITE, IDC_CURVADO_BUSCAR});
}

void CCurvadoDlg::OnAvanzado() {
    // Kept: nothing is exchanged first; the scale is that of its last change that was a number. The
    // host's dialog has no parent.
    const int escala = static_cast<int>(m_pData->m_Escala);
    Cuadros::EditaCopia(
        [=](auto&... valores) {
            return Cotana::CCurvadoAvanzadoDlg(escala, valores..., nullptr).DoModal();
        },
        m_pData->m_ValorAvanzado1, m_pData->m_ValorAvanzado2, m_pData->m_AvanzadoPorEscala);
}

void CCurvadoDlg::OnChangeEscalaCurvado() {
    UpdateData(TRUE);
    // Kept: the host sees the values follow each key, also when the user then cancels.
    if (m_pData->m_AvanzadoPorEscala) {
        m_pData->m_ValorAvanzado1 = m_pData->m_Escala * Avanzado1PorEscala;
        m_pData->m_ValorAvanzado2 = m_pData->m_Escala * Avanzado2PorEscala;
    }
}

void CCurvadoDlg::OnBnClickedCodigosCurvas() {
    Cuadros::EditaCopia(
        [this](auto&... codigos) { return CCurvadoCodigosDlg(codigos..., this).DoModal(); },
        m_pData->m_CodigoCurvas1, m_pData->m_CodigoCurvas2, m_pData->m_CodigoCurvas3,
        m_pData->m_CodigoCurvas4, m_pData->m_CodigoCurvas5);
}

void CCurvadoDlg::OnCbnSelchangeTipoSuavizado() {
    UpdateData(TRUE);
    const CComboBox& tipos = TiposSuavizado(*this);
    const int tipo = tipos.GetCurSel();
    // Where no type is selected, as in a language file without types, the controls stay as they
    // are.
    if (tipo == CB_ERR || tipos.GetCount() == 0)
        return;
    Cuadros::Habilita(
        *this, tipo != 0,
        {IDC_CURVADO_OPCION_SUAVIZADO, IDC_CURVADO_NIVEL_SUAVIZADO, IDC_CURVADO_NIVEL_FLECHAS});
    UpdateData(FALSE);
}

void CCurvadoDlg::OnCheckRespetarCurvas() {
    UpdateData(TRUE);
    Cuadros::Habilita(*this, m_pData->m_RespetarCurvas,
                      {IDC_CURVADO_CURVAS_A_RESPETAR_1, IDC_CURVADO_CURVAS_A_RESPETAR_2});
}

void CCurvadoDlg::OnCheckRangoCota() {
    UpdateData(TRUE);
    Cuadros::Habilita(*this, m_pData->m_RangoCota,
                      {IDC_CURVADO_COTA_MINIMA, IDC_CURVADO_COTA_MAXIMA});
}

void CCurvadoDlg::OnOK() {
    // Kept: a text that is no number does not stop OK. The checks take the value of before, and the
    // base class's OK refuses the text a second time.
    UpdateData(TRUE);
    if (m_hWnd == nullptr)
        return; // taken away under the prompt
    const Cotana::CDataCurvado& data = *m_pData;
    // Kept: the type is read from a hidden list too, and is -1 where none is selected.
    m_pData->m_TipoSuavizado = TiposSuavizado(*this).GetCurSel();

    if (data.m_Escala == 0)
        return Cuadros::Rechaza(*this, IDS_ESCALA_NO_POSITIVA);
    // Kept: the height of the labels comes before the intervals, their spacing after them.
    if (data.m_TextoCurvas && data.m_TextoValor1 <= 0)
        return Cuadros::Rechaza(*this, IDS_VALOR_TEXTO_NO_POSITIVO);
    if (data.m_Equidistancia >= data.m_EquidistanciaMaestra ||
        Cuadros::Signo(data.m_EquidistanciaMaestra) != 1 ||
        Cuadros::Signo(data.m_Equidistancia) != 1)
        return Cuadros::Rechaza(*this, IDS_VALOR_NO_POSITIVO);
    if (data.m_TextoCurvas && data.m_TextoValor2 <= 0)
        return Cuadros::Rechaza(*this, IDS_SEGUNDO_VALOR_NO_POSITIVO);
    if (data.m_Limite && data.m_FicheroLimite.IsEmpty())
        return Cuadros::Rechaza(*this, IDS_FICHERO_LIMITE_OBLIGATORIO);
    // Kept: the level is checked for the third type alone, although every type but the first has
    // one.
    if (data.m_TipoSuavizado == SuavizadoConNivel &&
        (data.m_NivelSuavizado < NivelMinimo || data.m_NivelSuavizado > NivelMaximo))
        return Cuadros::Rechaza(*this, IDS_NIVEL_SUAVIZADO_FUERA);
    // The range has to overlap the model's elevations: it may go beyond them, and be a single one.
    if (data.m_RangoCota &&
        (m_CotaMinimaModelo > data.m_CotaMaxima || data.m_CotaMinima > m_CotaMaximaModelo ||
         data.m_CotaMinima > data.m_CotaMaxima))
        return Cuadros::Rechaza(*this, IDS_RANGO_COTAS_FUERA);

    CDialog::OnOK();
}

void CCurvadoDlg::OnHelp() {
    Cuadros::AbreAyuda(IDD_CURVADO);
}

BOOL CCurvadoDlg::OnHelpInfo(HELPINFO* /*pHelpInfo*/) {
    OnHelp();
    return TRUE;
}
