#include "cuadros/frame/Signo.h"

namespace Cuadros {

int Signo(double valor) {
    // Kept: what is within the tolerance counts as zero, the limits included.
    constexpr double tolerancia = 1e-7;
    if (valor < -tolerancia)
        return -1;
    return valor > tolerancia ? 1 : 0;
}

} // namespace Cuadros
