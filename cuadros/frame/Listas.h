// What the dialogs' report lists have in common: their columns, their filling, their selection.
#pragma once

#include <afxcmn.h>

#include <initializer_list>
#include <vector>

namespace Cuadros {

/// One column of a report list.
struct Columna {
    UINT titulo; ///< number of the text of its heading
    int ajuste;  ///< LVCFMT_LEFT, LVCFMT_RIGHT or LVCFMT_CENTER
    int ancho;   ///< in pixels
};

/// Gives an empty list its columns, grid lines and the selection of whole rows.
void PreparaLista(CListCtrl& lista, std::initializer_list<Columna> columnas);

/// Inserts a row with its text in the first column.
///
/// @param texto cut to 259 characters where it is longer.
/// @return the index that the row has in the list.
int InsertaFila(CListCtrl& lista, int indice, const CString& texto);

/// While one of these lives its list is not drawn: a list that draws itself takes far longer to
/// fill. For a list that is shown, one at a time.
class ListaSinDibujar {
public:
    explicit ListaSinDibujar(CWnd& lista);
    ~ListaSinDibujar();
    ListaSinDibujar(const ListaSinDibujar&) = delete;
    ListaSinDibujar& operator=(const ListaSinDibujar&) = delete;

private:
    CWnd& m_Lista;
};

/// Selects every one of the first `filas` rows of a list, or none of them, row by row.
void SeleccionaFilas(CListCtrl& lista, unsigned int filas, bool seleccionadas);

/// Whether a list has a selected row.
bool HaySeleccion(const CListCtrl& lista);

/// Calls `visita(i)` for each selected row i of a list below `filas`, in increasing order.
template <class Visita>
void RecorreSeleccion(const CListCtrl& lista, unsigned int filas, Visita visita) {
    for (int i = lista.GetNextItem(-1, LVNI_SELECTED); i >= 0;
         i = lista.GetNextItem(i, LVNI_SELECTED)) {
        if (static_cast<unsigned int>(i) >= filas)
            return;
        visita(static_cast<unsigned int>(i));
    }
}

/// Inserts a row as `InsertaFila` does, with an image of the list's small image list and no state
/// image.
///
/// @return the index that the row has in the list.
int InsertaFilaConImagen(CListCtrl& lista, int indice, const CString& texto, int imagen);

/// Fills a list with `filas` rows in two passes: `nuevo(i)` inserts each row i, and once all are
/// there `modifica(i)` shows its other columns. The list is not drawn meanwhile.
template <class Nuevo, class Modifica>
void LlenaLista(CListCtrl& lista, std::size_t filas, Nuevo nuevo, Modifica modifica) {
    const ListaSinDibujar quieta(lista);
    const int cuantas = static_cast<int>(filas);
    for (int i = 0; i < cuantas; ++i)
        nuevo(i);
    for (int i = 0; i < cuantas; ++i)
        modifica(i);
}

/// The first selected row of a list, -1 when there is none.
int PrimeraSeleccionada(const CListCtrl& lista);

/// The selected rows of a list, in increasing order.
std::vector<int> FilasSeleccionadas(const CListCtrl& lista);

/// The key of a list's notification that one was pressed (`LVN_KEYDOWN`).
WORD TeclaPulsada(const NMHDR* notificacion);

} // namespace Cuadros
