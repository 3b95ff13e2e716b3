#include "cuadros/triangulation/ListaHojas.h"

#include <algorithm>

#include "cuadros/frame/Controles.h"
#include "cuadros/frame/Listas.h"
#include "cuadros/frame/Nombres.h"

namespace Cuadros {

bool SumaNombres(CListBox& lista, const CString& nombres) {
    const std::vector<CString> sumados = ListaNombres(nombres);
    const ListaSinDibujar quieta(lista);
    for (const CString& nombre : sumados)
        lista.AddString(nombre);
    return !sumados.empty();
}

void SumaSoltados(CListBox& lista, HDROP soltados) {
    constexpr int maximo = 259; // Kept: a longer path is cut.
    const ListaSinDibujar quieta(lista);
    for (const CString& ruta : RutasSoltadas(soltados))
        lista.AddString(ruta.Left(maximo));
}

void RestaSeleccionados(CListBox& lista) {
    std::vector<int> indices(static_cast<std::size_t>(std::max(0, lista.GetSelCount())));
    lista.GetSelItems(static_cast<int>(indices.size()), indices.data());
    int borrados = 0;
    for (const int indice : indices) // each deletion moves those after it one up
        lista.DeleteString(static_cast<UINT>(indice - borrados++));
}

bool HaySeleccion(const CListBox& lista) {
    return lista.GetSelCount() > 0;
}

void RecogeHojas(CListBox& lista, std::vector<CString>& hojas) {
    hojas.clear();
    // A list that is drawn scrolls at each file.
    const ListaSinDibujar quieta(lista);
    const int cuantas = lista.GetCount();
    for (int i = 0; i < cuantas; ++i) {
        // Kept: each file is selected as it is taken.
        lista.SetSel(-1, FALSE);
        lista.SetSel(i, TRUE);
        lista.GetText(i, hojas.emplace_back());
    }
}

void HabilitaAceptar(CWnd& dialogo, const CListBox& lista) {
    Habilita(dialogo, lista.GetCount() >= 1, {IDOK});
}

} // namespace Cuadros
