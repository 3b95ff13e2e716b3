#include "sample/Ficha.h"

#include <windows.h>

#include <algorithm>

using Cotana::CDigiTab;
using Cotana::CInfoClasificacion;

namespace {

/// How many there are, and the first of them.
template <class Nombre>
CString Lista(size_t cuantos, const Nombre& nombre) {
    constexpr size_t Mostrados = 5;
    CString texto = Valor(static_cast<int>(cuantos));
    for (size_t i = 0; i < std::min(cuantos, Mostrados); ++i)
        texto += (i == 0 ? L": " : L", ") + nombre(i);
    if (cuantos > Mostrados)
        texto += L", ...";
    return texto;
}

} // namespace

CString Valor(double numero) {
    CString texto;
    texto.Format(L"%.15g", numero);
    return texto;
}

CString Valor(int numero) {
    CString texto;
    texto.Format(L"%d", numero);
    return texto;
}

CString Valor(unsigned int numero) {
    CString texto;
    texto.Format(L"%u", numero);
    return texto;
}

CString Valor(const CString& texto) {
    return L"\"" + texto + L"\"";
}

CString Valor(const Cotana::CCoor3D<double>& lugar) {
    return Valor(lugar.m_X) + L", " + Valor(lugar.m_Y);
}

CString Valor(const Cotana::CMaximas<double>& extension) {
    const auto& [maximo, minimo] = extension;
    return Valor(minimo.m_X) + L" to " + Valor(maximo.m_X) + L", " + Valor(minimo.m_Y) + L" to " +
           Valor(maximo.m_Y);
}

CString Valor(const CDigiTab& tabla) {
    return Lista(tabla.Cantidad(),
                 [&](size_t i) { return tabla[static_cast<unsigned int>(i)].GetCodigo(); });
}

CString Valor(const std::vector<int>& numeros) {
    return Lista(numeros.size(), [&](size_t i) { return Valor(numeros[i]); });
}

CString Valor(const std::vector<CInfoClasificacion>& clasificaciones) {
    return Lista(clasificaciones.size(),
                 [&](size_t i) { return Valor(int{clasificaciones[i].GetClasificacion()}); });
}

CString Valor(const std::vector<CString>& ficheros) {
    return Lista(ficheros.size(),
                 [&](size_t i) { return ficheros[i].Mid(ficheros[i].ReverseFind(L'\\') + 1); });
}

CString AntesYDespues(const Ficha& antes, const Ficha& despues) {
    const auto longest = [](const Ficha& ficha, CString Campo::*part) {
        int length = 0;
        for (const Campo& campo : ficha)
            length = std::max(length, (campo.*part).GetLength());
        return length;
    };
    const int nombres = longest(antes, &Campo::nombre);
    const int valores = longest(antes, &Campo::valor);

    CString texto;
    for (size_t i = 0; i < antes.size(); ++i) {
        const bool igual = antes[i].valor == despues[i].valor;
        CString linea;
        linea.Format(L"  %c %-*s  %-*s  %s", igual ? L' ' : L'*', nombres,
                     static_cast<LPCWSTR>(antes[i].nombre), valores,
                     static_cast<LPCWSTR>(antes[i].valor),
                     igual ? L"" : static_cast<LPCWSTR>(L"-> " + despues[i].valor));
        texto += linea.TrimRight() + L"\n";
    }
    return texto;
}

std::string Utf8(const CString& texto) {
    std::string utf8(3 * static_cast<size_t>(texto.GetLength()), '\0');
    utf8.resize(WideCharToMultiByte(CP_UTF8, 0, texto, texto.GetLength(), utf8.data(),
                                    static_cast<int>(utf8.size()), nullptr, nullptr));
    return utf8;
}

bool Escribe(const CString& texto, bool error) {
    const std::string utf8 = Utf8(texto);
    const HANDLE salida = GetStdHandle(error ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE);
    DWORD escritos = 0;
    return WriteFile(salida, utf8.data(), static_cast<DWORD>(utf8.size()), &escritos, nullptr);
}
