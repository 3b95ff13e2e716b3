#pragma once

#include <afxwin.h>

#include <cotana/modelo/DataCurvado.h>

#include "cuadros/frame/Exporta.h"

class CDocTemplate;

/// Options of drawing the contours of a terrain model. Directly bound. Help at context 151165.
class CUADROS_API CCurvadoDlg : public CDialog {
public:
    /// @param data       the record to edit; it must live as long as the dialog.
    /// @param plantilla  handed to the host's file prompt as it is; may be null.
    /// @param cotaMinima lowest elevation of the model, in metres.
    /// @param cotaMaxima highest elevation of the model, in metres.
    /// @param extras     show command of the smoothing and of the contours to respect: 0 hides
    ///                   them, 1 shows them; every other is passed to Windows as it is.
    /// @param padre      the owner; null takes the host's main window.
    CCurvadoDlg(Cotana::CDataCurvado& data, CDocTemplate* plantilla, double cotaMinima,
                double cotaMaxima, int extras, CWnd* padre = nullptr);
    ~CCurvadoDlg() override;

    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

public:
    BOOL OnInitDialog() override;

    afx_msg void OnCheckTextoCurvas();
    afx_msg void OnBuscar();
    afx_msg void OnCheckLimite();
    afx_msg void OnAvanzado();
    afx_msg void OnChangeEscalaCurvado();
    afx_msg void OnBnClickedCodigosCurvas();
    afx_msg void OnCbnSelchangeTipoSuavizado();
    afx_msg void OnCheckRespetarCurvas();
    afx_msg void OnCheckRangoCota();

    void OnOK() override;

    virtual void OnHelp();
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo);

protected:
    Cotana::CDataCurvado* m_pData;
    CDocTemplate* m_pPlantilla;
    double m_CotaMinimaModelo;
    double m_CotaMaximaModelo;
    int m_Extras;
};
