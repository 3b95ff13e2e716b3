#include "cuadros/import/CuentaNodos.h"

#include <limits>

namespace Cuadros {

namespace {

/// The absolute value of the least integer has no room in an `int`.
unsigned int Absoluto(int valor) {
    const auto bits = static_cast<unsigned int>(valor);
    return valor < 0 ? 0U - bits : bits;
}

} // namespace

int Trunca(double valor) {
    constexpr double minimo = std::numeric_limits<int>::min();
    constexpr double maximo = std::numeric_limits<int>::max();
    const bool cabe = valor > minimo - 1 && valor < maximo + 1; // what is not a number does not
    return cabe ? static_cast<int>(valor) : std::numeric_limits<int>::min();
}

int CuentaNodos(double pasosX, double pasosY) {
    return static_cast<int>(Absoluto(Trunca(pasosX)) * Absoluto(Trunca(pasosY)));
}

} // namespace Cuadros
