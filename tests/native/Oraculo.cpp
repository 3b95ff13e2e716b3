#include "Oraculo.h"

#include <cstddef>

namespace {

bool EsSeparador(wchar_t letra) {
    switch (letra) {
    case 0x000A:
    case 0x000D:
    case 0x0020:
    case 0xFEFF:
        return true;
    default:
        return false;
    }
}

} // namespace

std::vector<std::wstring> NombresSegunOraculo(const std::wstring& linea) {
    std::vector<std::wstring> nombres;
    std::wstring actual;
    bool enNombre = false;
    bool enComillas = false;
    const auto termina = [&] {
        nombres.push_back(actual);
        actual.clear();
        enNombre = false;
    };
    for (const wchar_t letra : linea) {
        if (letra == 0x0022) {
            const bool cierra = enComillas;
            if (cierra || enNombre)
                termina();
            enNombre = enComillas = !cierra;
        } else if (!enComillas && EsSeparador(letra)) {
            if (enNombre)
                termina();
        } else {
            enNombre = true;
            actual += letra;
        }
    }
    if (enNombre)
        termina();
    return nombres;
}

std::vector<std::wstring> NombresCortando(const std::wstring& linea) {
    std::vector<std::wstring> nombres;
    std::wstring copia = linea;
    bool enComillas = false;
    std::size_t i = 0;
    const auto corta = [&](bool guarda) {
        if (guarda)
            nombres.push_back(copia.substr(0, i));
        copia = copia.substr(i + 1);
        i = 0;
    };
    while (i < copia.size()) {
        const wchar_t letra = copia[i];
        if (letra == 0x0022) {
            // An opening quote after text ends that name, and opens the next one all the same.
            corta(enComillas || i > 0);
            enComillas = !enComillas;
        } else if (!enComillas && EsSeparador(letra)) {
            corta(i > 0);
        } else {
            ++i;
        }
    }
    if (enComillas || !copia.empty())
        nombres.push_back(copia);
    return nombres;
}
