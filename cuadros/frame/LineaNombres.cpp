#include "cuadros/frame/LineaNombres.h"

#include <algorithm>

namespace Cuadros::Linea {

namespace {

constexpr wchar_t Comilla = L'"';
// No tab: the host's prompt never separates with one, and a name may hold it.
constexpr std::wstring_view Separadores = L" \r\n\uFEFF";
constexpr std::wstring_view FinDeNombre = L" \r\n\uFEFF\"";

std::wstring_view QuitaDelante(std::wstring_view& linea, std::size_t cuantos) {
    const std::wstring_view delante = linea.substr(0, cuantos);
    linea.remove_prefix(delante.size());
    return delante;
}

} // namespace

bool Siguiente(std::wstring_view& linea, std::wstring_view& nombre) {
    QuitaDelante(linea, linea.find_first_not_of(Separadores));
    if (linea.empty())
        return false;
    if (linea.front() != Comilla) {
        nombre = QuitaDelante(linea, linea.find_first_of(FinDeNombre));
        return true;
    }
    linea.remove_prefix(1);
    nombre = QuitaDelante(linea, linea.find(Comilla));
    linea.remove_prefix(std::min<std::size_t>(1, linea.size()));
    return true;
}

int Cuenta(std::wstring_view linea) {
    int cuantos = 0;
    std::wstring_view nombre;
    while (Siguiente(linea, nombre))
        ++cuantos;
    return cuantos;
}

} // namespace Cuadros::Linea
