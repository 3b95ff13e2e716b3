#pragma once

#include <afxwin.h>

#include <cotana/modelo/DataVectoresPendiente.h>

#include "cuadros/frame/Exporta.h"

class CDocTemplate;

/// Options of drawing the slope of a terrain model as vectors. Directly bound. Help at context
/// 151299.
class CUADROS_API CVectoresPendienteDlg : public CDialog {
    DECLARE_DYNAMIC(CVectoresPendienteDlg)

public:
    /// @param data      the record to edit; it must live as long as the dialog.
    /// @param plantilla handed to the host's file prompt as it is; may be null.
    /// @param padre     the owner; null takes the host's main window.
    CVectoresPendienteDlg(Cotana::CDataVectoresPendiente& data, CDocTemplate* plantilla,
                          CWnd* padre = nullptr);
    ~CVectoresPendienteDlg() override;

    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

public:
    BOOL OnInitDialog() override;

    afx_msg void OnBuscar();
    afx_msg void OnCheckLimite();

    void OnOK() override;

    virtual void OnHelp();
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo);

protected:
    Cotana::CDataVectoresPendiente* m_pData;
    CDocTemplate* m_pPlantilla;
};
