#pragma once

#include <afxwin.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

/// A dialog of the library, over variables of its own.
struct Dialogo {
    using Uso = std::function<void(CDialog&)>;

    std::string nombre; ///< of its class
    UINT plantilla;
    std::function<void(CWnd* padre, const Uso& uso)> hazlo; ///< makes one, not yet open
};

inline std::ostream& operator<<(std::ostream& salida, const Dialogo& dialogo) {
    return salida << dialogo.nombre;
}

/// One line for each dialog. Its variables enable what they can.
const std::vector<Dialogo>& Dialogos();
