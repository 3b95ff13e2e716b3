#include "cuadros/frame/LineaNombres.h"

namespace Cuadros::Linea {

namespace {

constexpr wchar_t Comilla = L'"';
// Kept: no tab. The host's prompt never separates with one, and a name may hold it.
constexpr std::wstring_view FinDeNombre = L" \r\n\uFEFF\"";
constexpr std::wstring_view Separadores = FinDeNombre.substr(0, FinDeNombre.find(Comilla));

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
    QuitaDelante(linea, 1);
    nombre = QuitaDelante(linea, linea.find(Comilla));
    QuitaDelante(linea, 1);
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
