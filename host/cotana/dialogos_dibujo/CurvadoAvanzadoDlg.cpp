#include "cotana/dialogos_dibujo/CurvadoAvanzadoDlg.h"

#include "cotana/dialogos_dibujo/DialogosDibujoIds.h"

namespace Cotana {

namespace {

/// The values in metres, for each unit of the scale's denominator.
constexpr double Valor1PorEscala = 0.00004;
constexpr double Valor2PorEscala = 0.0002;

/// More than what follows from any scale.
constexpr double ValorMaximo = 1000000;

} // namespace

CCurvadoAvanzadoDlg::CCurvadoAvanzadoDlg(int escala, double& valor1, double& valor2, int& porEscala,
                                         CWnd* padre)
    : CDialog(IDD_CURVADO_AVANZADO, padre), m_Escala(static_cast<unsigned int>(escala)),
      m_DestinoValor1(valor1), m_DestinoValor2(valor2), m_DestinoPorEscala(porEscala),
      m_Valor1(valor1), m_Valor2(valor2), m_PorEscala(porEscala != 0) {}

CCurvadoAvanzadoDlg::~CCurvadoAvanzadoDlg() = default;

void CCurvadoAvanzadoDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Check(pDX, IDC_CURVADO_AVANZADO_POR_ESCALA, m_PorEscala);
    DDX_Text(pDX, IDC_CURVADO_AVANZADO_VALOR_1, m_Valor1);
    DDV_MinMaxDouble(pDX, m_Valor1, 0, ValorMaximo);
    DDX_Text(pDX, IDC_CURVADO_AVANZADO_VALOR_2, m_Valor2);
    DDV_MinMaxDouble(pDX, m_Valor2, 0, ValorMaximo);
}

BEGIN_MESSAGE_MAP(CCurvadoAvanzadoDlg, CDialog)
    ON_BN_CLICKED(IDC_CURVADO_AVANZADO_POR_ESCALA, &CCurvadoAvanzadoDlg::OnPorEscala)
END_MESSAGE_MAP()

BOOL CCurvadoAvanzadoDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    CenterWindow();
    CString rotulo, conEscala;
    GetDlgItemText(IDC_CURVADO_AVANZADO_POR_ESCALA, rotulo);
    conEscala.Format(rotulo, m_Escala);
    SetDlgItemText(IDC_CURVADO_AVANZADO_POR_ESCALA, conEscala);
    HabilitaValores();
    return TRUE;
}

void CCurvadoAvanzadoDlg::HabilitaValores() {
    for (const int numero : {IDC_CURVADO_AVANZADO_VALOR_1, IDC_CURVADO_AVANZADO_VALOR_2}) {
        if (CWnd* const control = GetDlgItem(numero))
            control->EnableWindow(!m_PorEscala);
    }
}

void CCurvadoAvanzadoDlg::OnPorEscala() {
    m_PorEscala = IsDlgButtonChecked(IDC_CURVADO_AVANZADO_POR_ESCALA) == BST_CHECKED;
    if (m_PorEscala) {
        // What was typed is of no account now, a text that is no number included.
        m_Valor1 = m_Escala * Valor1PorEscala;
        m_Valor2 = m_Escala * Valor2PorEscala;
        UpdateData(FALSE);
    }
    HabilitaValores();
}

void CCurvadoAvanzadoDlg::OnOK() {
    if (!UpdateData(TRUE))
        return;
    m_DestinoValor1 = m_Valor1;
    m_DestinoValor2 = m_Valor2;
    m_DestinoPorEscala = m_PorEscala;
    EndDialog(IDOK);
}

} // namespace Cotana
