#pragma once

#include <afxwin.h>

#include <cotana/triangulacion/DataSuavizarTIN.h>

#include "cuadros/frame/Exporta.h"

/// Options of smoothing a triangulated network. Directly bound. Help at context 151186.
class CUADROS_API CSuavizarTINDlg : public CDialog {
    DECLARE_DYNAMIC(CSuavizarTINDlg)

public:
    /// @param data  the record to edit; it must live as long as the dialog.
    /// @param padre the owner; null takes the host's main window.
    explicit CSuavizarTINDlg(Cotana::CDataSuavizarTIN& data, CWnd* padre = nullptr);
    ~CSuavizarTINDlg() override;

    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

public:
    BOOL OnInitDialog() override;

    afx_msg void OnBnClickedCheckIterar();

    virtual void OnHelp();
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo);

protected:
    Cotana::CDataSuavizarTIN* m_pData;
};
