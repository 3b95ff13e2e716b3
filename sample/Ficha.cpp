#include "sample/Ficha.h"

#include <windows.h>

#include <algorithm>

using Cotana::CDigiTab;

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

CString Valor(const CString& texto) {
    return L"\"" + texto + L"\"";
}

CString Valor(const CDigiTab& tabla) {
    constexpr unsigned int Mostrados = 5;
    CString texto = Valor(static_cast<int>(tabla.Cantidad()));
    for (unsigned int i = 0; i < std::min(tabla.Cantidad(), Mostrados); ++i)
        texto += (i == 0 ? L": " : L", ") + tabla[i].GetCodigo();
    if (tabla.Cantidad() > Mostrados)
        texto += L", ...";
    return texto;
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
