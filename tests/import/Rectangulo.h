// The rectangles of the imports' tests.
#pragma once

#include <cotana/entidad/Maximas.h>

inline Cotana::CMaximas<double> Rectangulo(double xMinima, double yMinima, double xMaxima,
                                           double yMaxima) {
    Cotana::CMaximas<double> rectangulo;
    rectangulo.m_Minimo.m_X = xMinima;
    rectangulo.m_Minimo.m_Y = yMinima;
    rectangulo.m_Maximo.m_X = xMaxima;
    rectangulo.m_Maximo.m_Y = yMaxima;
    return rectangulo;
}
