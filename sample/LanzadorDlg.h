#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include "sample/Conversacion.h"

/// The sample host's window: opens a conversation, and shows its record before and after.
class CLanzadorDlg : public CDialog {
public:
    explicit CLanzadorDlg(Terreno& terreno, CWnd* padre = nullptr);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

    BOOL OnInitDialog() override;
    afx_msg void OnEligeConversacion(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnDobleClic(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnAbrir();

private:
    void LlenaArbol();
    /// The chosen conversation; null while a subsystem is chosen.
    const Conversacion* Elegida() const;
    void MuestraResultado(const CString& texto);
    void MuestraFicha(const Ficha& antes, const Ficha& despues);

    Terreno& m_Terreno;
    CTreeCtrl m_Arbol;
    CListCtrl m_Ficha;
};
