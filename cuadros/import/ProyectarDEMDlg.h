#pragma once

#include <afxwin.h>

#include <cotana/modelo/DataProyectaDEM.h>

#include "cuadros/frame/Exporta.h"

class CDocTemplate;

/// Options of projecting a terrain model. Directly bound, but for the number, which is staged. Help
/// at context 150393.
class CUADROS_API CProyectarDEMDlg : public CDialog {
    DECLARE_DYNAMIC(CProyectarDEMDlg)

public:
    /// @param datos the record to edit; it must live as long as the dialog.
    /// @param padre the owner; null takes the host's main window.
    explicit CProyectarDEMDlg(Cotana::CDataProyectaDEM& datos, CWnd* padre = nullptr);
    ~CProyectarDEMDlg() override;

    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

public:
    BOOL OnInitDialog() override;

    afx_msg void OnBnClickedBuscarProyecta();
    afx_msg void OnBnClickedCheckInforme();
    afx_msg void OnBnClickedBuscarFicInforme();

    void OnOK() override;

    virtual void OnHelp();
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo);

protected:
    Cotana::CDataProyectaDEM* m_pData;
    CString m_TextoValor;
    CDocTemplate* m_pPlantilla;
};
