#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <functional>

#include "PruebaIds.h"

/// A dialog with one control of each kind that the shared gestures handle.
class CDialogoPrueba : public CDialog {
public:
    using Gesto = std::function<void(CDialogoPrueba&)>;

    /// @param alAbrir what the dialog does when it opens.
    explicit CDialogoPrueba(Gesto alAbrir) : CDialog(IDD_PRUEBA), m_AlAbrir(std::move(alAbrir)) {}

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        m_AlAbrir(*this);
        return TRUE;
    }

    /// Runs a gesture each time that OK is pressed, instead of closing.
    void AlAceptar(Gesto gesto) { m_AlAceptar = std::move(gesto); }

    void OnOK() override {
        if (m_AlAceptar)
            m_AlAceptar(*this);
        else
            CDialog::OnOK();
    }

    CListCtrl m_Lista;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_PRUEBA_LISTA, m_Lista);
    }

private:
    Gesto m_AlAbrir;
    Gesto m_AlAceptar;
};

inline void NadaAlAbrir(CDialogoPrueba&) {}
