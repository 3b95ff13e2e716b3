#pragma once

#include <cstddef>
#include <string>

/// Holds the library's answers for `linea` against the oracles'.
///
/// @param cuantos how many names are wanted.
/// @return what differs, in words; empty when nothing does.
std::string DiferenciaConOraculo(const std::wstring& linea, std::size_t cuantos);

/// The line with everything but plain characters escaped, fit to be shown.
std::string Legible(const std::wstring& linea);
