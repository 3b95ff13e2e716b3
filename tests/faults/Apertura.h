#pragma once

#include <afxwin.h>

#include <functional>
#include <vector>

/// Opens a dialog and does something in it, whatever else comes: a message box, a sub-dialog and
/// the like are dismissed. For conversations of which only the end is known.
class Apertura {
public:
    using Paso = std::function<void(HWND)>;

    explicit Apertura(CDialog& dialogo);
    ~Apertura();
    Apertura(const Apertura&) = delete;
    Apertura& operator=(const Apertura&) = delete;

    /// What is done at each other window that comes, before it is dismissed.
    std::function<void()> alAviso = [] {};

    /// Runs the dialog, and `paso` in it once it is shown. One that is open afterwards is
    /// cancelled.
    ///
    /// @return what `DoModal` returns.
    INT_PTR Ejecuta(Paso paso);

private:
    static void CALLBACK Turno(HWND, UINT, UINT_PTR, DWORD);
    void Atiende(HWND activa);

    CDialog& m_Dialogo;
    Paso m_Paso;
    HWND m_Atendida = nullptr; ///< the other window that came last
};

/// The controls of a dialog, in its order.
std::vector<HWND> ControlesDe(HWND dialogo);

/// Uses a control as a user would: clicks a button or the first row of a list, types a number,
/// selects.
void UsaControl(HWND control);

/// Uses each control that a dialog has, but OK and Cancel. Ends where the dialog does.
void UsaControles(HWND dialogo);

/// Types what is no number into each edit of a dialog.
void EscribeLetras(HWND dialogo);
