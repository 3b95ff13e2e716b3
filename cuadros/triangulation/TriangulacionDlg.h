#pragma once

#include <afxwin.h>

#include <utility>
#include <vector>

#include <cotana/comun_ui/ListaControlMFC.h>
#include <cotana/triangulacion/DataTriangulacion.h>

#include "cuadros/frame/Exporta.h"

namespace Cotana {

/// Options of a triangulation: which codes take part, which of them act as breaklines, the
/// elevation limits, and the network's name.
///
/// Directly bound: every exchange writes the host's record at once, also when the dialog is
/// cancelled later. Help by F1 only, at context 150083.
class CUADROS_API CTriangulacionDlg : public CDialog {
public:
    /// @param data  the record to edit; it must live as long as the dialog. Its `m_CodigosRuptura`
    ///              is replaced when the dialog opens, if its `m_Codigos` has any code.
    /// @param padre the owner; null takes the host's main window.
    explicit CTriangulacionDlg(CDataTriangulacion& data, CWnd* padre = nullptr);
    ~CTriangulacionDlg() override;

    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

public:
    BOOL OnInitDialog() override;

    afx_msg void OnItemchangedListaCodigos(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnTodosCods();
    afx_msg void OnNingunoCods();
    afx_msg void OnTodosRups();
    afx_msg void OnNingunoRups();
    afx_msg void OnCheckRuptura();
    afx_msg void OnCheckNoUnirCurvas();

    void OnOK() override;

    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo);

    /// Shows the record's breakline table in its list anew, every row selected. The dialog must be
    /// open.
    void ActualizaRupturas();

protected:
    CDataTriangulacion* m_pData;
    CListaControlMFC m_ListaCodigos;
    CListaControlMFC m_ListaRupturas;

private:
    void HabilitaAceptar();

    /// Code and mnemonic of each row of `m_ListaRupturas`.
    std::vector<std::pair<CString, CString>> m_RupturasMostradas;
};

} // namespace Cotana
