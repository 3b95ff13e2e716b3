#include "Comprobacion.h"

#include <algorithm>
#include <vector>

#include "Oraculo.h"
#include "cuadros/frame/LineaNombres.h"

namespace {

using Nombres = std::vector<std::wstring>;

const std::wstring SinTocar = L"not touched";

/// What the array must hold after a call: the names found, empty strings up to the wanted count,
/// and beyond it what it held before.
Nombres ArrayEsperado(const Nombres& nombres, std::size_t cuantos, bool vacia) {
    Nombres esperado(cuantos + 1, SinTocar);
    if (vacia)
        return esperado;
    for (std::size_t i = 0; i < cuantos; ++i)
        esperado[i] = i < nombres.size() ? nombres[i] : std::wstring();
    return esperado;
}

std::string Difiere(const char* que, const std::wstring& linea) {
    return std::string(que) + " differs for <" + Legible(linea) + ">";
}

} // namespace

std::string Legible(const std::wstring& linea) {
    constexpr char cifras[] = "0123456789abcdef";
    std::string texto;
    for (const wchar_t letra : linea) {
        const auto numero = static_cast<unsigned>(letra);
        if (numero >= 0x20 && numero < 0x7f) {
            texto += static_cast<char>(numero);
            continue;
        }
        texto += "\\u";
        for (int bits = 12; bits >= 0; bits -= 4)
            texto += cifras[(numero >> bits) & 0xf];
    }
    return texto;
}

std::string DiferenciaConOraculo(const std::wstring& linea, std::size_t cuantos) {
    const Nombres nombres = NombresSegunOraculo(linea);
    if (NombresCortando(linea) != nombres)
        return Difiere("One oracle from the other", linea);
    if (Cuadros::Linea::Cuenta(linea) != static_cast<int>(nombres.size()))
        return Difiere("The count", linea);

    Nombres destino(cuantos + 1, SinTocar);
    const int guardados = Cuadros::Linea::Separa(linea, static_cast<int>(cuantos), destino.data());
    if (guardados != static_cast<int>(std::min(cuantos, nombres.size())))
        return Difiere("The number of names stored", linea);
    if (destino != ArrayEsperado(nombres, cuantos, linea.empty()))
        return Difiere("The array of names", linea);
    return {};
}
