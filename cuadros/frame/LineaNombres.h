// The line of names with which a multiple-selection file prompt answers, read without any help of
// the framework: the same source is compiled natively for its fuzz test.
#pragma once

#include <string_view>

namespace Cuadros::Linea {

/// Takes the next name off the front of `linea`.
///
/// Names are separated by blanks, line feeds, carriage returns and byte-order marks; a tab is part
/// of a name. A double quote opens a quoted name, ending the one before it, if any; all characters
/// up to the next double quote, or to the end of the line, are the quoted name, which may be empty.
///
/// @param nombre the name without its quotes; a view into the same text as `linea`.
/// @return false when only separators are left.
bool Siguiente(std::wstring_view& linea, std::wstring_view& nombre);

/// How many names the line holds.
int Cuenta(std::wstring_view linea);

/// Stores the first `cuantos` names of the line.
///
/// @param destino array of at least `cuantos` strings, constructible from characters and their
///                count. All `cuantos` are emptied first, also when the line holds fewer names;
///                none is touched when the line is empty or `cuantos` is not positive.
/// @return how many names were stored.
template <class Texto>
int Separa(std::wstring_view linea, int cuantos, Texto* destino) {
    if (linea.empty() || cuantos <= 0)
        return 0;
    for (int i = 0; i < cuantos; ++i)
        destino[i] = Texto();
    int guardados = 0;
    std::wstring_view nombre;
    while (guardados < cuantos && Siguiente(linea, nombre))
        destino[guardados++] = Texto(nombre.data(), static_cast<int>(nombre.size()));
    return guardados;
}

} // namespace Cuadros::Linea
