#include "cuadros/triangulation/ListaClasificaciones.h"

#include "cuadros/frame/Listas.h"
#include "cuadros/frame/Numeros.h"
#include "cuadros/resources/StringIds.h"

namespace Cuadros {

void PreparaListaClasificaciones(CListCtrl& lista) {
    PreparaLista(lista, {{IDS_COLUMNA_CODIGO, LVCFMT_LEFT, 35},
                         {IDS_COLUMNA_TIPO, LVCFMT_LEFT, 200},
                         {IDS_COLUMNA_VALOR, LVCFMT_RIGHT, 75}});
}

int InsertaClasificacion(CListCtrl& lista, int fila,
                         const Cotana::CInfoClasificacion& clasificacion) {
    return InsertaFila(lista, fila, Entero(clasificacion.GetClasificacion()));
}

void CompletaClasificacion(CListCtrl& lista, int fila,
                           const Cotana::CInfoClasificacion& clasificacion) {
    lista.SetItemText(fila, 1, clasificacion.Descripcion(false));
    lista.SetItemText(fila, 2, Entero(clasificacion.GetPuntos()));
}

void AgregaSeleccion(const CListCtrl& lista, std::vector<int>& seleccion) {
    const std::vector<int> filas = FilasSeleccionadas(lista);
    seleccion.insert(seleccion.end(), filas.begin(), filas.end());
}

} // namespace Cuadros
