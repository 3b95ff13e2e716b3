#pragma once

#include <afx.h>

namespace Cotana {

/// Options of projecting a terrain model.
struct CDataProyectaDEM {
    /// Whether a report is written, to `m_FicheroInforme`.
    int m_Informe = 0;
    /// Whether gaps are filled.
    int m_Opcion = 0;
    /// Spacing of the nodes, in metres, which the user sees with three decimals.
    double m_Valor = 0;
    /// How a node gets its elevation, counted from 0: of three.
    int m_Tipo = 0;
    /// The file that says how the model is projected.
    CString m_FicheroProyeccion;
    /// The report; counts only where `m_Informe` is set.
    CString m_FicheroInforme;
};

} // namespace Cotana
