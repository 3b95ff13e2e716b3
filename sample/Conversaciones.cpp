#include "sample/Conversacion.h"

/// The object of a conversation's source.
#define CONVERSACION(nombre)                                                                       \
    extern const Conversacion conversacion##nombre;                                                \
    todas.push_back(&conversacion##nombre)

static std::vector<const Conversacion*> Todas() {
    std::vector<const Conversacion*> todas;
    CONVERSACION(Triangulacion);
    CONVERSACION(Triangulacion2D);
    CONVERSACION(Triangulacion3D);
    CONVERSACION(Triangulacion3DDisco);
    CONVERSACION(GenerarCases);
    CONVERSACION(SuavizarTIN);
    CONVERSACION(LimpiarRelieve);
    CONVERSACION(LimpiarRelieveRangoZ);
    CONVERSACION(Curvado);
    CONVERSACION(CurvadoCodigos);
    CONVERSACION(CurvadoTriangulacion);
    CONVERSACION(VectoresPendiente);
    CONVERSACION(CambiosPendienteTIN);
    CONVERSACION(ImportarGrid);
    CONVERSACION(ImportarGTOPO30);
    CONVERSACION(TipoProyeccion);
    CONVERSACION(ProyectarDEM);
    return todas;
}

const std::vector<const Conversacion*>& Conversaciones() {
    static const std::vector<const Conversacion*> todas = Todas();
    return todas;
}
