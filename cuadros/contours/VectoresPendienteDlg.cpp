#include "cuadros/contours/VectoresPendienteDlg.h"

#include "cuadros/frame/Dialogo.h"
#include "cuadros/frame/Peticiones.h"
#include "cuadros/resources/ContoursIds.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/StringIds.h"

IMPLEMENT_DYNAMIC(CVectoresPendienteDlg, CDialog)

CVectoresPendienteDlg::CVectoresPendienteDlg(Cotana::CDataVectoresPendiente& data,
                                             CDocTemplate* plantilla, CWnd* padre)
    : CDialog(IDD_VECTORES_PENDIENTE, padre), m_pData(&data), m_pPlantilla(plantilla) {}

CVectoresPendienteDlg::~CVectoresPendienteDlg() = default;

void CVectoresPendienteDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    // An exchange ends at the first number that it refuses. So the box and the texts come first:
    // they are read in any case.
    // clang-format off
    DDX_Check(pDX, IDC_VECTORES_PENDIENTE_LIMITE,         m_pData->m_Limite);
    DDX_Text (pDX, IDC_VECTORES_PENDIENTE_CADENA_1,       m_pData->m_Cadena1);
    DDX_Text (pDX, IDC_VECTORES_PENDIENTE_CADENA_2,       m_pData->m_Cadena2);
    DDX_Text (pDX, IDC_VECTORES_PENDIENTE_FICHERO_LIMITE, m_pData->m_FicheroLimite);
    DDX_Text (pDX, IDC_VECTORES_PENDIENTE_VALOR_1,        m_pData->m_ValorVector1);
    DDX_Text (pDX, IDC_VECTORES_PENDIENTE_VALOR_2,        m_pData->m_ValorVector2);
    DDX_Text (pDX, IDC_VECTORES_PENDIENTE_TEXTO_VALOR_1,  m_pData->m_TextoValor1);
    DDX_Text (pDX, IDC_VECTORES_PENDIENTE_TEXTO_ENTERO,   m_pData->m_TextoEntero);
    // clang-format on
}

BEGIN_MESSAGE_MAP(CVectoresPendienteDlg, CDialog)
    ON_BN_CLICKED(IDC_VECTORES_PENDIENTE_BUSCAR, &CVectoresPendienteDlg::OnBuscar)
    ON_BN_CLICKED(IDC_VECTORES_PENDIENTE_LIMITE, &CVectoresPendienteDlg::OnCheckLimite)
    ON_WM_HELPINFO()
    ON_COMMAND(ID_HELP, &CVectoresPendienteDlg::OnHelp)
END_MESSAGE_MAP()

BOOL CVectoresPendienteDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Cuadros::CentraConIcono(*this, IDI_PENDIENTES);
    // Kept: this legend is never shown.
    Cuadros::Muestra(*this, SW_HIDE,
                     {IDC_VECTORES_PENDIENTE_LEYENDA_1, IDC_VECTORES_PENDIENTE_LEYENDA_2});
    UpdateData(FALSE);
    OnCheckLimite();
    return TRUE;
}

void CVectoresPendienteDlg::OnBuscar() {
    UpdateData(TRUE);
    if (Cuadros::PideFicheroAbrir(m_pData->m_FicheroLimite, &m_pPlantilla))
        UpdateData(FALSE);
}

void CVectoresPendienteDlg::OnCheckLimite() {
    UpdateData(TRUE);
    Cuadros::Habilita(*this, m_pData->m_Limite,
                      {IDC_VECTORES_PENDIENTE_FICHERO_LIMITE, IDC_VECTORES_PENDIENTE_BUSCAR});
}

void CVectoresPendienteDlg::OnOK() {
    // Kept: a text that is no number does not stop OK. The checks take the value of before, and the
    // base class's OK refuses the text a second time.
    UpdateData(TRUE);
    if (m_hWnd == nullptr)
        return; // taken away under the prompt
    const Cotana::CDataVectoresPendiente& data = *m_pData;

    // Kept: in this order, and without the tolerance that other checks have.
    if (data.m_TextoValor1 <= 0)
        return Cuadros::Rechaza(*this, IDS_VALOR_TEXTO_NO_POSITIVO);
    // Kept: the text of this message is that of its own caption.
    if (data.m_ValorVector1 <= 0 || data.m_ValorVector2 <= 0)
        return Cuadros::Rechaza(*this, IDS_TITULO_MENSAJES);
    if (data.m_Limite && data.m_FicheroLimite.IsEmpty())
        return Cuadros::Rechaza(*this, IDS_FICHERO_LIMITE_OBLIGATORIO);
    if (data.m_Cadena1.IsEmpty() || data.m_Cadena2.IsEmpty())
        return Cuadros::Rechaza(*this, IDS_TEXTO_OBLIGATORIO);

    CDialog::OnOK();
}

void CVectoresPendienteDlg::OnHelp() {
    Cuadros::AbreAyuda(IDD_VECTORES_PENDIENTE);
}

BOOL CVectoresPendienteDlg::OnHelpInfo(HELPINFO* /*pHelpInfo*/) {
    OnHelp();
    return TRUE;
}
