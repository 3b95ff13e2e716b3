// The list of classifications of the two selection dialogs.
#pragma once

#include <afxcmn.h>

#include <vector>

#include <cotana/entidad/InfoClasificacion.h>

#include "cuadros/frame/Listas.h"

namespace Cuadros {

/// Gives the list its three columns.
void PreparaListaClasificaciones(CListCtrl& lista);

/// Inserts a row with the classification's number; the result is its index in the list.
int InsertaClasificacion(CListCtrl& lista, int fila,
                         const Cotana::CInfoClasificacion& clasificacion);

/// Shows the classification's description and its count in the other columns of its row.
void CompletaClasificacion(CListCtrl& lista, int fila,
                           const Cotana::CInfoClasificacion& clasificacion);

/// Fills the list by the dialog's own operations, in two passes, and selects the first row.
template <class Dialogo>
void LlenaListaClasificaciones(Dialogo& dialogo, CListCtrl& lista, std::size_t cuantas) {
    PreparaListaClasificaciones(lista);
    LlenaLista(
        lista, cuantas, [&](int i) { dialogo.ElementoNuevo(i); },
        [&](int i) { dialogo.ModificaElemento(i); });
    lista.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
}

/// Appends the indices of the selected rows, in increasing order.
void AgregaSeleccion(const CListCtrl& lista, std::vector<int>& seleccion);

} // namespace Cuadros
