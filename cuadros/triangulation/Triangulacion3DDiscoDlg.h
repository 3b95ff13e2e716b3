#pragma once

#include <afxwin.h>

#include <vector>

#include "cuadros/frame/Exporta.h"

class CDocTemplate;

namespace Cotana {

/// Triangulation of several files: their list, a number and a choice. Directly bound for the
/// number and the choice, staged for the list. Files can be dropped on it. No help.
class CUADROS_API CTriangulacion3DDiscoDlg : public CDialog {
    DECLARE_DYNAMIC(CTriangulacion3DDiscoDlg)

public:
    /// @param ficheros  replaced by the listed files on OK; not read: the list starts empty.
    /// @param plantilla handed to the host's file prompt.
    /// @param valor     a number, written by every exchange.
    /// @param opcion    index of the choice, 0 or 1, -1 for none; written by every exchange.
    /// @param padre     the owner; null takes the host's main window.
    CTriangulacion3DDiscoDlg(std::vector<CString>& ficheros, CDocTemplate* plantilla, double& valor,
                             int& opcion, CWnd* padre = nullptr);
    ~CTriangulacion3DDiscoDlg() override;

    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

public:
    BOOL OnInitDialog() override;

    afx_msg void OnSumarArchivos();
    afx_msg void OnRestarArchivos();
    afx_msg void OnSelchangeListaHojas();
    afx_msg void OnDropFiles(HDROP hDropInfo);

    void OnOK() override;

protected:
    double* m_pValor;
    int* m_pOpcion;
    CListBox m_ListaHojas;
    std::vector<CString>* m_pFicheros;
    CDocTemplate* m_pPlantilla;
};

} // namespace Cotana
