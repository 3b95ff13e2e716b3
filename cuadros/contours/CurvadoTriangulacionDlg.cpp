#include "cuadros/contours/CurvadoTriangulacionDlg.h"

#include "cuadros/frame/Dialogo.h"
#include "cuadros/frame/Numeros.h"
#include "cuadros/resources/ContoursIds.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/StringIds.h"

namespace Cotana {

IMPLEMENT_DYNAMIC(CCurvadoTriangulacionDlg, CDialog)

CCurvadoTriangulacionDlg::CCurvadoTriangulacionDlg(double equidistancia, const CString& cadena,
                                                   CWnd* padre)
    : CDialog(IDD_CURVADO_TRIANGULACION, padre), m_Equidistancia(equidistancia), m_Cadena(cadena) {}

CCurvadoTriangulacionDlg::~CCurvadoTriangulacionDlg() = default;

void CCurvadoTriangulacionDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_CURVADO_TRIANGULACION_EQUIDISTANCIA, m_Equidistancia);
    DDX_Text(pDX, IDC_CURVADO_TRIANGULACION_CADENA, m_Cadena);
}

BEGIN_MESSAGE_MAP(CCurvadoTriangulacionDlg, CDialog)
END_MESSAGE_MAP()

BOOL CCurvadoTriangulacionDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Cuadros::CentraConIcono(*this, IDI_TRIANGULACION);
    return TRUE;
}

void CCurvadoTriangulacionDlg::OnOK() {
    // Kept: a text that is no number does not stop OK. The checks take the value of before, and the
    // base class's OK refuses the text a second time.
    UpdateData(TRUE);
    if (m_hWnd == nullptr)
        return; // taken away under the prompt
    // Kept: where both are wrong, only the interval is refused.
    if (Cuadros::Signo(m_Equidistancia) != 1)
        return Cuadros::Rechaza(*this, IDS_VALOR_NO_POSITIVO);
    if (m_Cadena.IsEmpty())
        return Cuadros::Rechaza(*this, IDS_TEXTO_OBLIGATORIO);
    CDialog::OnOK();
}

} // namespace Cotana
