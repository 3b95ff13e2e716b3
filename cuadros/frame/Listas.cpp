#include "cuadros/frame/Listas.h"

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

ListaSinDibujar::ListaSinDibujar(CWnd& lista) : m_Lista(lista) {
    m_Lista.SetRedraw(FALSE);
}

ListaSinDibujar::~ListaSinDibujar() {
    m_Lista.SetRedraw(TRUE);
    m_Lista.Invalidate();
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
    std::vector<int> filas;
    for (int i = PrimeraSeleccionada(lista); i >= 0; i = lista.GetNextItem(i, LVNI_SELECTED))
        filas.push_back(i);
    return filas;
}

WORD TeclaPulsada(const NMHDR* notificacion) {
    return reinterpret_cast<const NMLVKEYDOWN*>(notificacion)->wVKey;
}

} // namespace Cuadros
