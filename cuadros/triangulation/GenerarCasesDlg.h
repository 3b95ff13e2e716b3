#pragma once

#include <afxwin.h>

#include <vector>

#include "cuadros/frame/Exporta.h"

class CDocTemplate;

namespace Cotana {

/// Generation of cases from several files: their list and a number. Directly bound for the number,
/// staged for the list. Files can be dropped on it. No help.
class CUADROS_API CGenerarCasesDlg : public CDialog {
    DECLARE_DYNAMIC(CGenerarCasesDlg)

public:
    /// @param ficheros  replaced by the listed files on OK; not read: the list starts empty.
    /// @param plantilla handed to the host's file prompt.
    /// @param valor     a number, written by every exchange.
    /// @param padre     the owner; null takes the host's main window.
    CGenerarCasesDlg(std::vector<CString>& ficheros, CDocTemplate* plantilla, double& valor,
                     CWnd* padre = nullptr);
    ~CGenerarCasesDlg() override;

    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

public:
    BOOL OnInitDialog() override;

    afx_msg void OnBnClickedSumarArchivos();
    afx_msg void OnBnClickedRestarArchivos();
    afx_msg void OnLbnSelchangeListaHojas();
    afx_msg void OnDropFiles(HDROP hDropInfo);

    void OnOK() override;

protected:
    double* m_pValor;
    CListBox m_ListaHojas;
    std::vector<CString>* m_pFicheros;
    CDocTemplate* m_pPlantilla;
};

} // namespace Cotana
