#include "cuadros/frame/Compacta.h"

namespace Cuadros {

namespace {

CRect EnPantalla(CWnd& dialogo, int control) {
    CRect marco;
    dialogo.GetDlgItem(control)->GetWindowRect(&marco);
    return marco;
}

} // namespace

int AlturaEntre(CWnd& dialogo, int arriba, int abajo) {
    return EnPantalla(dialogo, abajo).top - EnPantalla(dialogo, arriba).top;
}

void Sube(CWnd& dialogo, int pixeles, std::initializer_list<int> controles) {
    for (const int control : controles) {
        CRect marco = EnPantalla(dialogo, control);
        dialogo.ScreenToClient(&marco);
        dialogo.GetDlgItem(control)->MoveWindow(marco.left, marco.top - pixeles, marco.Width(),
                                                marco.Height());
    }
}

void Encoge(CWnd& dialogo, int pixeles) {
    CRect marco;
    dialogo.GetWindowRect(&marco);
    dialogo.SetWindowPos(&CWnd::wndNoTopMost, 0, 0, marco.Width(), marco.Height() - pixeles,
                         SWP_NOMOVE);
}

} // namespace Cuadros
