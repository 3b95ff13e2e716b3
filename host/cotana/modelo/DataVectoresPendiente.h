#pragma once

#include <afx.h>

namespace Cotana {

/// Options of drawing the slope of a terrain model as vectors.
struct CDataVectoresPendiente {
    /// Distance from one vector to the next, in metres, above 0.
    double m_ValorVector1 = 10;
    /// Length of a vector on paper, in millimetres, above 0.
    double m_ValorVector2 = 5;
    /// Code of the vectors.
    CString m_Cadena1;
    /// Code of the labels.
    CString m_Cadena2;
    /// Height of the labels on paper, in millimetres, above 0.
    double m_TextoValor1 = 2;
    /// Decimals of the labels.
    int m_TextoEntero = 1;
    /// File of the boundary; counts only while `m_Limite` is set.
    CString m_FicheroLimite;
    /// Whether vectors are drawn inside the boundary only.
    int m_Limite = 0;
};

} // namespace Cotana
