#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

/// What a person reads in a dialog: a control, or the group box around some.
struct Readable {
    RECT area;
    bool box;
};

/// The places of these in the order in which a person reads them: rows from the top; where nothing
/// separates rows, columns from the left; a group box is read as one, its caption first.
std::vector<std::size_t> readingOrder(const std::vector<Readable>& readables);
