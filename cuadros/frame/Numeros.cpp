#include "cuadros/frame/Numeros.h"

#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <string>
#include <type_traits>

namespace Cuadros {

CString ConDecimales(double valor, int decimales) {
    constexpr int porDefecto = 6;
    constexpr std::size_t signoCifrasYPunto = 1 + 309 + 1;
    const int precision = decimales < 0 ? porDefecto : decimales;
    std::string texto(signoCifrasYPunto + static_cast<std::size_t>(precision), '\0');
    const auto escrito = std::to_chars(texto.data(), texto.data() + texto.size(), valor,
                                       std::chars_format::fixed, precision);
    return CString(texto.data(), static_cast<int>(escrito.ptr - texto.data()));
}

CString Entero(int valor) {
    CString texto;
    texto.Format(L"%d", valor);
    return texto;
}

double LeeNumero(const CString& texto) {
    static const std::unique_ptr<std::remove_pointer_t<_locale_t>, decltype(&_free_locale)>
        conPunto(_create_locale(LC_NUMERIC, "C"), &_free_locale);
    return _wtof_l(texto, conPunto.get());
}

int LeeEntero(const CString& texto) {
    return _wtoi(texto);
}

int Signo(double valor) {
    // Kept: what is within the tolerance counts as zero, the limits included.
    constexpr double tolerancia = 1e-7;
    if (valor < -tolerancia)
        return -1;
    return valor > tolerancia ? 1 : 0;
}

CString LeePixel(const CString& texto, double& pixel, double alto, double ancho) {
    pixel = LeeNumero(texto);
    if (Signo(pixel) == 0)
        return CString(L"-");
    // Kept: a negative size counts as a positive one while it is typed; OK refuses it.
    pixel = std::abs(pixel);
    constexpr double megabytesPorPixel = 3.0 / (1024.0 * 1024.0);
    return ConDecimales(megabytesPorPixel * (alto / pixel) * (ancho / pixel), 2);
}

} // namespace Cuadros
