#include "cuadros/frame/Compacta.h"

namespace Cuadros {

namespace {

CRect EnPantalla(const CWnd& control) {
    CRect marco;
    control.GetWindowRect(&marco);
    return marco;
}

} // namespace

int AlturaEntre(CWnd& dialogo, int arriba, int abajo) {
    const CWnd* const deArriba = dialogo.GetDlgItem(arriba);
    const CWnd* const deAbajo = dialogo.GetDlgItem(abajo);
    return deArriba && deAbajo ? EnPantalla(*deAbajo).top - EnPantalla(*deArriba).top : 0;
}

void Sube(CWnd& dialogo, int pixeles, std::initializer_list<int> controles) {
    for (const int numero : controles) {
        CWnd* const control = dialogo.GetDlgItem(numero);
        if (control == nullptr)
            continue;
        CRect marco = EnPantalla(*control);
        dialogo.ScreenToClient(&marco);
        control->MoveWindow(marco.left, marco.top - pixeles, marco.Width(), marco.Height());
    }
}

void Encoge(CWnd& dialogo, int pixeles) {
    CRect marco;
    dialogo.GetWindowRect(&marco);
    dialogo.SetWindowPos(&CWnd::wndNoTopMost, 0, 0, marco.Width(), marco.Height() - pixeles,
                         SWP_NOMOVE);
}

} // namespace Cuadros
