#pragma once

#include <afxwin.h>

#include "cuadros/frame/Exporta.h"

/// The codes given to drawn contours. Edits the caller's own texts, by OK alone. Help at context
/// 151074.
class CUADROS_API CCurvadoCodigosDlg : public CDialog {
    DECLARE_DYNAMIC(CCurvadoCodigosDlg)

public:
    /// @param codigo1 code of the contours. This text and the next ones are edited in place, and
    ///                must live as long as the dialog.
    /// @param codigo2 code of the master contours.
    /// @param codigo3 code of the contours around depressions.
    /// @param codigo4 code of the master contours around depressions.
    /// @param codigo5 code of the labels.
    /// @param padre   the owner; null takes the host's main window.
    CCurvadoCodigosDlg(CString& codigo1, CString& codigo2, CString& codigo3, CString& codigo4,
                       CString& codigo5, CWnd* padre = nullptr);
    ~CCurvadoCodigosDlg() override;

    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

public:
    BOOL OnInitDialog() override;

    virtual void OnHelp();
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo);

protected:
    CString* m_pCodigo1;
    CString* m_pCodigo2;
    CString* m_pCodigo3;
    CString* m_pCodigo4;
    CString* m_pCodigo5;
};
