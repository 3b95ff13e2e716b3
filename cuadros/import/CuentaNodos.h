// How many nodes an import takes, as both of its dialogs count them.
#pragma once

namespace Cuadros {

/// The part of a number before its point, in 32 bits: -2147483648 for one that has no room in them,
/// and for what is not a number.
int Trunca(double valor);

/// Nodes of a rectangle that is so many steps wide and high. Each side is truncated, one that is
/// negative counts as its absolute value, and the closing nodes do not count.
///
/// @return the product, in 32 bits: one that is too large for them loses what is above.
int CuentaNodos(double pasosX, double pasosY);

} // namespace Cuadros
