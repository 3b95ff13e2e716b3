#pragma once

#include <array>

#include <cotana/topografia/Elipsoide.h>

namespace Cuadros {

/// The reference ellipsoids that the library knows, in the order in which hosts count them. Built
/// when the library is loaded, and never changed.
///
/// Row 0 is the one that a user has defined, with index -1 and no size; each other row has its own
/// number as index. A dialog lists rows 1 to 27: the entry at position p of its list is row p + 1,
/// and no entry (-1) row 0.
const std::array<Cotana::CElipsoide, 28>& Elipsoides();

} // namespace Cuadros
