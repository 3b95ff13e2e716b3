#pragma once

#include <afxwin.h>

#include "cuadros/frame/Exporta.h"

namespace Cotana {

/// The interval and the code of contours that are drawn from a triangulation. The caller reads both
/// from the dialog after OK. No help.
class CUADROS_API CCurvadoTriangulacionDlg : public CDialog {
    DECLARE_DYNAMIC(CCurvadoTriangulacionDlg)

public:
    /// @param equidistancia the contour interval shown at first, in metres.
    /// @param cadena        the code shown at first; it is copied.
    /// @param padre         the owner; null takes the host's main window.
    CCurvadoTriangulacionDlg(double equidistancia, const CString& cadena, CWnd* padre = nullptr);
    ~CCurvadoTriangulacionDlg() override;

    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

public:
    BOOL OnInitDialog() override;

    void OnOK() override;

    /// The contour interval, in metres; above 1e-7 after OK.
    double m_Equidistancia;
    /// The code of the contours; not empty after OK.
    CString m_Cadena;
};

} // namespace Cotana
