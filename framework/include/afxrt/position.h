// A place in a sequence that a Get...Position and a GetNext... function walk through.
#pragma once

namespace afx_internal {
struct Position;
} // namespace afx_internal

/// Null: the end of the sequence.
typedef afx_internal::Position* POSITION;
