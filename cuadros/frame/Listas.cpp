#include "cuadros/frame/Listas.h"

#include <algorithm>
#include <iterator>
#include <numeric>

#include "cuadros/frame/Dialogo.h"

namespace Cuadros {

namespace {

int Inserta(CListCtrl& lista, int indice, const CString& texto, UINT imagenDeEstado, int imagen) {
    // Kept: a longer text is cut in the list, never in the record.
    constexpr int maximo = 259;
    constexpr UINT partes = LVIF_TEXT | LVIF_IMAGE | LVIF_STATE;
    return lista.InsertItem(partes, indice, texto.Left(maximo),
                            INDEXTOSTATEIMAGEMASK(imagenDeEstado), LVIS_STATEIMAGEMASK, imagen, 0);
}

} // namespace

void PreparaLista(CListCtrl& lista, std::initializer_list<Columna> columnas) {
    int numero = 0;
    for (const Columna& columna : columnas) {
        lista.InsertColumn(numero, Texto(columna.titulo), columna.ajuste, columna.ancho);
        ++numero;
    }
    lista.SetExtendedStyle(LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT);
}

int InsertaFila(CListCtrl& lista, int indice, const CString& texto) {
    return Inserta(lista, indice, texto, 1, 0);
}

int InsertaFilaConImagen(CListCtrl& lista, int indice, const CString& texto, int imagen) {
    return Inserta(lista, indice, texto, 0, imagen);
}

void InsertaFila(CListCtrl& lista, int indice, const Fila& fila) {
    InsertaFila(lista, indice, fila.first);
    lista.SetItemText(indice, 1, fila.second);
}

ListaSinDibujar::ListaSinDibujar(CWnd& lista) : m_Lista(lista) {
    m_Lista.SetRedraw(FALSE);
}

ListaSinDibujar::~ListaSinDibujar() {
    m_Lista.SetRedraw(TRUE);
    m_Lista.Invalidate();
}

namespace {

/// Whether a list is as `CambiaFilas` leaves one of so many rows with none left out.
bool EstaIntacta(CListCtrl& lista, std::size_t filas) {
    return static_cast<std::size_t>(lista.GetItemCount()) == filas &&
           lista.GetSelectedCount() == filas && lista.GetNextItem(-1, LVNI_FOCUSED) < 0 &&
           lista.GetSelectionMark() < 0 && lista.GetTopIndex() == 0;
}

} // namespace

void CambiaFilas(CListCtrl& lista, std::vector<Fila>& mostradas, std::vector<Fila> filas,
                 const std::vector<unsigned int>& salvo) {
    const ListaSinDibujar quieta(lista);
    if (!salvo.empty() || !EstaIntacta(lista, mostradas.size())) {
        lista.DeleteAllItems();
        mostradas.clear();
    }
    const auto [distintas, nuevas] = std::ranges::mismatch(mostradas, filas);
    const auto [finDistintas, finNuevas] =
        std::mismatch(mostradas.rbegin(), std::reverse_iterator(distintas), filas.rbegin(),
                      std::reverse_iterator(nuevas));
    const auto indice = [&](auto fila) { return static_cast<int>(fila - filas.begin()); };
    for (auto fila = distintas; fila != finDistintas.base(); ++fila)
        lista.DeleteItem(indice(nuevas));
    for (auto fila = nuevas; fila != finNuevas.base(); ++fila)
        InsertaFila(lista, indice(fila), *fila);
    auto omitida = salvo.begin();
    for (auto fila = nuevas; fila != finNuevas.base(); ++fila) {
        if (omitida != salvo.end() && *omitida == static_cast<unsigned int>(indice(fila)))
            ++omitida;
        else
            lista.SetItemState(indice(fila), LVIS_SELECTED, LVIS_SELECTED);
    }
    mostradas = std::move(filas);
}

void SeleccionaFilas(CListCtrl& lista, unsigned int filas, bool seleccionadas) {
    // The mask names the one bit that changes: any state without that bit clears it.
    const UINT estado = seleccionadas ? LVIS_SELECTED : ~UINT{LVIS_SELECTED};
    for (unsigned int i = 0; i < filas; ++i)
        lista.SetItemState(static_cast<int>(i), estado, LVIS_SELECTED);
}

bool HaySeleccion(const CListCtrl& lista) {
    return PrimeraSeleccionada(lista) >= 0;
}

int PrimeraSeleccionada(const CListCtrl& lista) {
    return lista.GetNextItem(-1, LVNI_SELECTED);
}

std::vector<int> FilasSeleccionadas(const CListCtrl& lista) {
    std::vector<int> filas(lista.GetSelectedCount());
    if (filas.empty())
        return filas;
    const int primera = PrimeraSeleccionada(lista);
    // Where none is selected behind as many rows as there are selected ones, they follow each other
    // and need not be asked for one by one: so it is while one after the other is selected.
    if (lista.GetNextItem(primera + static_cast<int>(filas.size()) - 1, LVNI_SELECTED) < 0) {
        std::iota(filas.begin(), filas.end(), primera);
        return filas;
    }
    int siguiente = primera;
    for (int& fila : filas) {
        fila = siguiente;
        siguiente = lista.GetNextItem(siguiente, LVNI_SELECTED);
    }
    return filas;
}

WORD TeclaPulsada(const NMHDR* notificacion) {
    return reinterpret_cast<const NMLVKEYDOWN*>(notificacion)->wVKey;
}

} // namespace Cuadros
