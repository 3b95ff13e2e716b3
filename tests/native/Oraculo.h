#pragma once

#include <string>
#include <vector>

/// The names of a line, found by another road than the library's: one walk over the characters
/// with two flags, which writes every name down letter by letter.
std::vector<std::wstring> NombresSegunOraculo(const std::wstring& linea);

/// The same names found by a third road: at each end of a name, what was before it is cut off the
/// line and the walk begins anew.
std::vector<std::wstring> NombresCortando(const std::wstring& linea);
