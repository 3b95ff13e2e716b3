#include "cuadros/frame/Listas.h"

#include "cuadros/frame/Dialogo.h"

namespace Cuadros {

void PreparaLista(CListCtrl& lista, std::initializer_list<Columna> columnas) {
    int numero = 0;
    for (const Columna& columna : columnas) {
        lista.InsertColumn(numero, Texto(columna.titulo), columna.ajuste, columna.ancho);
        ++numero;
    }
    lista.SetExtendedStyle(LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT);
}

int InsertaFila(CListCtrl& lista, int indice, const CString& texto) {
    // Kept: a longer text is cut in the list, never in the record.
    constexpr int maximo = 259;
    constexpr UINT partes = LVIF_TEXT | LVIF_IMAGE | LVIF_STATE;
    constexpr UINT primeraImagenDeEstado = INDEXTOSTATEIMAGEMASK(1);
    return lista.InsertItem(partes, indice, texto.Left(maximo), primeraImagenDeEstado,
                            LVIS_STATEIMAGEMASK, 0, 0);
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
    return lista.GetNextItem(-1, LVNI_SELECTED) >= 0;
}

} // namespace Cuadros
