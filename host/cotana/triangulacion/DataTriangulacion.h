#pragma once

#include "cotana/entidad/DigiTab.h"

namespace Cotana {

/// Options of building a triangulated network out of surveyed points and lines.
class COTANA_API CDataTriangulacion {
public:
    CDataTriangulacion();
    CDataTriangulacion(const CDataTriangulacion&);
    CDataTriangulacion& operator=(const CDataTriangulacion&);
    virtual ~CDataTriangulacion();

    /// Lower value of the pair of limits, in metres; below `m_LimiteSuperior`.
    double m_LimiteInferior = -1000.0;
    /// Upper value of the pair of limits, in metres.
    double m_LimiteSuperior = 9000.0;
    /// Distance within which lines of one elevation are not joined, in metres; above 1e-7.
    double m_DistanciaNoUnir = 10.0;
    /// Further number; not checked.
    double m_ParametroExtra = 0.0;
    /// How breaklines act: 0 to 3, the index of the treatment; -1 when none is chosen.
    int m_TipoRuptura = 0;
    /// Name of the network; not empty.
    CString m_Nombre;
    /// Whether breaklines are used: 0 or 1.
    int m_Rupturas = 1;
    /// Whether lines of one elevation stay apart: 0 or 1.
    int m_NoUnirCurvas = 0;
    /// The codes to triangulate.
    CDigiTab m_Codigos;
    /// The codes that act as breaklines.
    CDigiTab m_CodigosRuptura;
    /// Emptied when new options are accepted.
    CDigiTab m_CodigosExtra1;
    /// Emptied when new options are accepted.
    CDigiTab m_CodigosExtra2;
};

} // namespace Cotana
