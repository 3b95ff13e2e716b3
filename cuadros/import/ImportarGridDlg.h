#pragma once

#include <afxwin.h>

#include "cuadros/frame/Exporta.h"
#include "cuadros/import/DataImportarGrid.h"

/// Options of importing an elevation grid: the rectangle, how many of its nodes, their spacing.
/// Staged, but for the ratio and the two counts, which every exchange writes. Help at context
/// 145125.
class CUADROS_API CImportarGridDlg : public CDialog {
public:
    /// @param datos the record to edit, with the extents and the spacing of the file; it must live
    ///              as long as the dialog.
    /// @param padre the owner; null takes the host's main window.
    explicit CImportarGridDlg(CDataImportarGrid& datos, CWnd* padre = nullptr);
    ~CImportarGridDlg() override;

    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

public:
    BOOL OnInitDialog() override;

    /// Counts the nodes of the rectangle and the ratio that are shown, and shows the count.
    afx_msg void OnCalcula();

    void OnOK() override;

    virtual void OnHelp();
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo);

protected:
    CDataImportarGrid* m_pData;
    CString m_FicheroXMinima;
    CString m_FicheroXMaxima;
    CString m_FicheroYMinima;
    CString m_FicheroYMaxima;
    CString m_XMinima;
    CString m_XMaxima;
    CString m_YMinima;
    CString m_YMaxima;
    CString m_Paso;
};
