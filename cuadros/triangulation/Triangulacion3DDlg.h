#pragma once

#include <afxwin.h>

#include <vector>

#include <cotana/comun_ui/ListaControlMFC.h>
#include <cotana/entidad/InfoClasificacion.h>

#include "cuadros/frame/Exporta.h"

namespace Cotana {

/// Choice of the classifications that take part in a triangulation in space, with a number and an
/// option. Directly bound: OK's exchange writes the host's two variables. No help.
class CUADROS_API CTriangulacion3DDlg : public CDialog {
    DECLARE_DYNAMIC(CTriangulacion3DDlg)

public:
    /// @param clasificaciones what there is to choose from; copied, never written.
    /// @param valor           written on OK; a text that is no number is refused.
    /// @param entero          whether the option is chosen, 0 or 1; written on OK.
    /// @param activarCasilla  whether the user may use the check box; it then starts ticked.
    /// @param padre           the owner; null takes the host's main window.
    CTriangulacion3DDlg(std::vector<CInfoClasificacion>& clasificaciones, double& valor,
                        int& entero, int activarCasilla, CWnd* padre = nullptr);
    ~CTriangulacion3DDlg() override;

    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

public:
    BOOL OnInitDialog() override;

    /// Inserts the row of classification i, with its number; the result is the row's index.
    int ElementoNuevo(int i);
    /// Fills the other columns of row i.
    void ModificaElemento(int i);
    /// Enables OK while a row is selected.
    void HayCambioSeleccion();

    afx_msg void OnItemchangedCodigos(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnBnClickedMfcbuttonAll();
    afx_msg void OnBnClickedMfcbuttonNone();

    void OnOK() override;

protected:
    std::vector<CInfoClasificacion> m_Clasificaciones;
    CListaControlMFC m_ListaClasificaciones;
    int m_ActivarCasilla;
    double* m_pValor;
    int* m_pEntero;

public:
    /// After IDOK: the indices of the chosen classifications, in increasing order, behind what it
    /// held before.
    std::vector<int> m_Seleccion;
    /// After IDOK: whether the check box was ticked, 0 or 1.
    int m_Casilla = 0;
};

} // namespace Cotana
