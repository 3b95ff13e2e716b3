#include "cuadros/frame/Nombres.h"

#include "cuadros/frame/LineaNombres.h"

namespace Cuadros {

namespace {

std::wstring_view Vista(const CString& texto) {
    return {texto.GetString(), static_cast<std::size_t>(texto.GetLength())};
}

} // namespace

int CuentaNombres(const CString& nombres) {
    return Linea::Cuenta(Vista(nombres));
}

int SeparaNombres(const CString& nombres, int cuantos, CString* destino) {
    return Linea::Separa(Vista(nombres), cuantos, destino);
}

std::vector<CString> ListaNombres(const CString& nombres) {
    std::vector<CString> lista(static_cast<std::size_t>(CuentaNombres(nombres)));
    SeparaNombres(nombres, static_cast<int>(lista.size()), lista.data());
    return lista;
}

} // namespace Cuadros
