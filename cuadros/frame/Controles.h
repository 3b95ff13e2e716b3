#pragma once

#include <afxwin.h>

#include <initializer_list>

namespace Cuadros {

// A number that no control of the dialog has is passed over: a language file may lack any, and a
// dialog whose window is gone has none at all.

/// Enables or disables the controls of a dialog with these numbers, in this order. One that is
/// disabled with the focus on it passes it on to the control before it.
void Habilita(CWnd& dialogo, BOOL habilitados, std::initializer_list<int> controles);

/// Shows or hides the controls of a dialog with these numbers, in this order.
///
/// @param como Windows' show command: 0 (`SW_HIDE`) hides; every other is passed on as it is.
void Muestra(CWnd& dialogo, int como, std::initializer_list<int> controles);

/// Tells the debug output that the template of a dialog lacks a control, and abandons what is being
/// done: by `CNotSupportedException`, as an exchange does, which ends a dialog that is opening
/// with -1; by `CUserException`, of which nobody is told, where the dialog's window is gone.
[[noreturn]] void FaltaControl(const CWnd& dialogo, int numero);

/// The control of a dialog with this number as an object of its class, as in
/// `Control<CComboBox>(*this, IDC_TIPOS)`; see `FaltaControl` for one that is absent.
template <class Clase>
Clase& Control(const CWnd& dialogo, int numero) {
    CWnd* const control = dialogo.GetDlgItem(numero);
    if (control == nullptr)
        FaltaControl(dialogo, numero);
    return *static_cast<Clase*>(control);
}

} // namespace Cuadros
