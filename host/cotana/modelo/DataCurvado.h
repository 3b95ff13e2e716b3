#pragma once

#include <afx.h>

namespace Cotana {

/// Options of drawing the contours of a terrain model.
struct CDataCurvado {
    /// How far a drawn line may be from the contour, in metres.
    double m_ValorAvanzado1 = 0.04;
    /// Length of the shortest segment of a drawn line, in metres.
    double m_ValorAvanzado2 = 0.2;
    /// Whether the two values follow the scale: 0.04 and 0.2 mm on paper.
    int m_AvanzadoPorEscala = 1;
    /// Whether the contours are labelled with their elevation.
    int m_TextoCurvas = 0;
    /// Whether contours are drawn inside the boundary of `m_FicheroLimite` only.
    int m_Limite = 0;
    /// Whether smoothing keeps the original vertices; counts only where `m_TipoSuavizado` is not 0.
    int m_OpcionSuavizado = 0;
    /// Whether lines whose ends meet are joined.
    int m_Opcion1 = 0;
    /// Whether contours that the drawing has already are respected.
    int m_RespetarCurvas = 0;
    /// Whether contours are drawn from `m_CotaMinima` to `m_CotaMaxima` only.
    int m_RangoCota = 0;
    /// Whether only master contours are labelled.
    int m_OpcionTexto = 1;
    /// Code of the contours.
    CString m_CodigoCurvas1;
    /// Code of the master contours.
    CString m_CodigoCurvas2;
    /// Code of the contours around depressions.
    CString m_CodigoCurvas3;
    /// Code of the master contours around depressions.
    CString m_CodigoCurvas4;
    /// Code of the labels.
    CString m_CodigoCurvas5;
    /// Code of the contours to respect.
    CString m_CurvasARespetar1;
    /// Code of the master contours to respect.
    CString m_CurvasARespetar2;
    /// File of the boundary; counts only while `m_Limite` is set.
    CString m_FicheroLimite;
    /// Denominator of the drawing's scale, above 0.
    unsigned int m_Escala = 1000;
    /// Height of the labels on paper, in millimetres, above 0.
    double m_TextoValor1 = 2;
    /// Contour interval, in metres, above 0.
    double m_Equidistancia = 1;
    /// Interval of the master contours, in metres, above `m_Equidistancia`.
    double m_EquidistanciaMaestra = 5;
    /// Distance between the labels of a contour on paper, in millimetres, above 0.
    double m_TextoValor2 = 100;
    /// Lowest elevation of a contour, in metres.
    double m_CotaMinima = 0;
    /// Highest elevation of a contour, in metres.
    double m_CotaMaxima = 0;
    /// Decimals of the labels.
    int m_TextoEntero = 0;
    /// How strongly the lines are smoothed, 1 to 10.
    int m_NivelSuavizado = 5;
    /// How the lines are smoothed: 0 not at all, 1 with rounded corners, 2 by splines; -1 when none
    /// is chosen.
    int m_TipoSuavizado = 0;
};

} // namespace Cotana
