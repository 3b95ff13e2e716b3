// The rows of lists that scripts choose: the survey's own where they are there, else others. The
// files of the tour may be anybody's.
#pragma once

#include <initializer_list>
#include <vector>

#include "kit/driver.h"

/// The rows of these texts in a column, without those that are not there; the last row where none
/// is. The list has a row.
std::vector<int> Filas(const kit::ListView& lista, std::initializer_list<const wchar_t*> textos,
                       int columna = 0);

/// Takes rows out of a selection of all; one stays.
void Quita(kit::ListView lista, std::vector<int> filas);
