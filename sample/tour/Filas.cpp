#include "sample/tour/Filas.h"

std::vector<int> Filas(const kit::ListView& lista, std::initializer_list<const wchar_t*> textos,
                       int columna) {
    std::vector<int> filas;
    for (const wchar_t* texto : textos) {
        const int fila = lista.find(texto, columna);
        if (fila != -1)
            filas.push_back(fila);
    }
    if (filas.empty())
        filas.push_back(lista.rows() - 1);
    return filas;
}

void Quita(kit::ListView lista, std::vector<int> filas) {
    if (static_cast<int>(filas.size()) == lista.rows())
        filas.pop_back();
    for (const int fila : filas)
        lista.click(fila, kit::Held::Ctrl);
}
