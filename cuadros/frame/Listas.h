// What the dialogs' report lists have in common: their columns, their filling, their selection.
#pragma once

#include <afxcmn.h>

#include <initializer_list>
#include <utility>
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

/// The texts of a row in a list of two columns.
using Fila = std::pair<CString, CString>;

/// Inserts a row with its two texts; the first one is cut like that of any row.
void InsertaFila(CListCtrl& lista, int indice, const Fila& fila);

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

/// Shows these rows and no others, as if the list were emptied and filled anew: none with the
/// focus, each one selected but those of `salvo`. Where nobody has touched or scrolled the list
/// since, only the rows that differ are taken out and put in: a table that grows to n rows, row by
/// row, costs n rows and not their square.
///
/// @param mostradas what the list was given the last time, empty before the first; afterwards
///                  `filas`. Nobody else may change the list's rows, their texts or item states:
///                  only the selection, the focus and the scrolling are the user's.
/// @param salvo     indices into `filas`, in increasing order: one that is not has no effect, nor
///                  have those after it.
void CambiaFilas(CListCtrl& lista, std::vector<Fila>& mostradas, std::vector<Fila> filas,
                 const std::vector<unsigned int>& salvo);

/// Selects every one of the first `filas` rows of a list, or none of them, row by row.
void SeleccionaFilas(CListCtrl& lista, unsigned int filas, bool seleccionadas);

/// Whether a list has a selected row.
bool HaySeleccion(const CListCtrl& lista);

/// The selected rows of a list, in increasing order.
std::vector<int> FilasSeleccionadas(const CListCtrl& lista);

/// Calls `visita(i)` for each selected row i of a list below `filas`, in increasing order.
template <class Visita>
void RecorreSeleccion(const CListCtrl& lista, unsigned int filas, Visita visita) {
    for (const int i : FilasSeleccionadas(lista)) {
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

/// The key of a list's notification that one was pressed (`LVN_KEYDOWN`).
WORD TeclaPulsada(const NMHDR* notificacion);

} // namespace Cuadros
