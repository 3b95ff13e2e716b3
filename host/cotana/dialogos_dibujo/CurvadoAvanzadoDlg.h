#pragma once

#include <afxwin.h>

#include "cotana/Exporta.h"

namespace Cotana {

/// The two advanced values of drawing contours. The caller's variables are written by OK alone.
class COTANA_API CCurvadoAvanzadoDlg : public CDialog {
public:
    /// @param escala    denominator of the drawing's scale, taken as a number without sign.
    /// @param valor1    how far a drawn line may be from the contour, in metres. This variable and
    ///                  the next ones must live as long as the dialog.
    /// @param valor2    length of the shortest segment of a drawn line, in metres.
    /// @param porEscala whether the two follow the scale: 0.04 and 0.2 mm on paper.
    /// @param padre     the owner; null takes the application's main window.
    CCurvadoAvanzadoDlg(int escala, double& valor1, double& valor2, int& porEscala,
                        CWnd* padre = nullptr);
    ~CCurvadoAvanzadoDlg() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

    BOOL OnInitDialog() override;
    void OnOK() override;

private:
    void OnPorEscala();
    void HabilitaValores();

    double m_Escala;
    double& m_DestinoValor1;
    double& m_DestinoValor2;
    int& m_DestinoPorEscala;
    double m_Valor1;
    double m_Valor2;
    int m_PorEscala;
};

} // namespace Cotana
