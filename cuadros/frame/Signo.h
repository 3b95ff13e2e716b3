#pragma once

namespace Cuadros {

/// Sign of `valor` with a tolerance of 1e-7: -1 below -1e-7, +1 above 1e-7, else 0. Both limits
/// themselves give 0, and so does what is not a number.
int Signo(double valor);

} // namespace Cuadros
