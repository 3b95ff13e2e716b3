#include "cuadros/frame/Nombres.h"

#include <shellapi.h>

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

std::vector<CString> RutasSoltadas(HDROP soltados) {
    constexpr UINT cuenta = 0xFFFFFFFF;
    const UINT cuantas = DragQueryFile(soltados, cuenta, nullptr, 0);
    std::vector<CString> rutas;
    rutas.reserve(cuantas);
    for (UINT i = 0; i < cuantas; ++i) {
        TCHAR ruta[MAX_PATH] = L"";
        if (DragQueryFile(soltados, i, ruta, MAX_PATH) < MAX_PATH - 1) {
            rutas.emplace_back(ruta);
            continue;
        }
        // Perhaps cut. To ask each one for its length first would take twice as long.
        const UINT longitud = DragQueryFile(soltados, i, nullptr, 0);
        CString& larga = rutas.emplace_back();
        DragQueryFile(soltados, i, larga.GetBuffer(static_cast<int>(longitud)), longitud + 1);
        larga.ReleaseBuffer();
    }
    return rutas;
}

} // namespace Cuadros
