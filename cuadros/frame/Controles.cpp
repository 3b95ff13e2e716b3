#include "cuadros/frame/Controles.h"

namespace Cuadros {

void Habilita(CWnd& dialogo, BOOL habilitados, std::initializer_list<int> controles) {
    for (const int numero : controles) {
        CWnd* const control = dialogo.GetDlgItem(numero);
        if (control == nullptr)
            continue;
        // A control that is disabled while it has the focus (an edit whose text was just refused)
        // would leave the keyboard to nobody.
        if (!habilitados && control == CWnd::GetFocus()) {
            constexpr WPARAM anterior = TRUE;
            dialogo.SendMessage(WM_NEXTDLGCTL, anterior);
        }
        control->EnableWindow(habilitados);
    }
}

void Muestra(CWnd& dialogo, int como, std::initializer_list<int> controles) {
    for (const int numero : controles) {
        if (CWnd* const control = dialogo.GetDlgItem(numero))
            control->ShowWindow(como);
    }
}

void FaltaControl(const CWnd& dialogo, int numero) {
    if (dialogo.m_hWnd == nullptr)
        AfxThrowUserException();
    CString titulo;
    dialogo.GetWindowText(titulo);
    CString linea;
    linea.Format(L"Cuadros: the dialog \"%s\" has no control %d.\n", titulo.GetString(), numero);
    OutputDebugString(linea);
    AfxThrowNotSupportedException();
}

} // namespace Cuadros
