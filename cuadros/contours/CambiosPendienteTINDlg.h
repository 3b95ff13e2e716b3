#pragma once

#include <afxwin.h>

#include <cotana/modelo/DataCambiosPendiente.h>

#include "cuadros/frame/Exporta.h"

/// Options of drawing where the slope of a triangulated network changes. Directly bound. Help at
/// context 151185.
class CUADROS_API CCambiosPendienteTINDlg : public CDialog {
    DECLARE_DYNAMIC(CCambiosPendienteTINDlg)

public:
    /// @param data  the record to edit; it must live as long as the dialog.
    /// @param padre the owner; null takes the host's main window.
    explicit CCambiosPendienteTINDlg(Cotana::CDataCambiosPendiente& data, CWnd* padre = nullptr);
    ~CCambiosPendienteTINDlg() override;

    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

public:
    BOOL OnInitDialog() override;

    afx_msg void OnBnClickedGenerarDibujo();

    virtual void OnHelp();
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo);

protected:
    Cotana::CDataCambiosPendiente* m_pData;
};
