#pragma once

#include <afxwin.h>

#include <cotana/triangulacion/DataLimpiarRelieve.h>

#include "cuadros/frame/Exporta.h"

namespace Cotana {

/// Options of cleaning a terrain model of points that stand out. Staged: OK writes the record, with
/// two decimals. Help at context 150073.
class CUADROS_API CLimpiarRelieveDlg : public CDialog {
public:
    /// @param data  the record to edit; it must live as long as the dialog.
    /// @param padre the owner; null takes the host's main window.
    explicit CLimpiarRelieveDlg(CDataLimpiarRelieve& data, CWnd* padre = nullptr);
    ~CLimpiarRelieveDlg() override;

    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

public:
    BOOL OnInitDialog() override;
    void OnOK() override;

    virtual void OnHelp();
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo);

protected:
    CString m_TextoB;
    CString m_TextoA;
    int m_SinUso = 0; // Kept: part of the class's layout
    CDataLimpiarRelieve* m_pData;
};

} // namespace Cotana
