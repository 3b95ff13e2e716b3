#pragma once

#include <afxwin.h>

#include <cotana/dibujo/DataTipoProyeccion.h>

#include "cuadros/frame/Exporta.h"

/// How a profile is projected: two choices, of which only one can be the first of its group.
/// Directly bound. Help at context 145391.
class CUADROS_API CTipoProyeccionDlg : public CDialog {
public:
    /// @param datos the record to edit; it must live as long as the dialog.
    /// @param padre the owner; null takes the host's main window.
    explicit CTipoProyeccionDlg(Cotana::CDataTipoProyeccion& datos, CWnd* padre = nullptr);
    ~CTipoProyeccionDlg() override;

    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

public:
    BOOL OnInitDialog() override;

    afx_msg void OnCheckRadios();

    virtual void OnHelp();
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo);

protected:
    Cotana::CDataTipoProyeccion* m_pData;
};
