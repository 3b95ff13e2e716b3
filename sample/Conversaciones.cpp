#include "sample/Conversacion.h"

#include "sample/conversaciones/Triangulacion.h"

const std::vector<Conversacion>& Conversaciones() {
    static const std::vector<Conversacion> conversaciones = {
        {L"Triangulation", L"Triangulation options", L"TriangulacionDlg", 150083,
         PreparaTriangulacion, AbreTriangulacion, FichaTriangulacion, ConduceTriangulacion},
    };
    return conversaciones;
}
