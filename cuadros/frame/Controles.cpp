#include "cuadros/frame/Controles.h"

namespace Cuadros {

void Habilita(CWnd& dialogo, BOOL habilitados, std::initializer_list<int> controles) {
    for (const int control : controles)
        dialogo.GetDlgItem(control)->EnableWindow(habilitados);
}

void Muestra(CWnd& dialogo, int como, std::initializer_list<int> controles) {
    for (const int control : controles)
        dialogo.GetDlgItem(control)->ShowWindow(como);
}

} // namespace Cuadros
