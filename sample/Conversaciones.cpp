#include "sample/Conversacion.h"
#include "sample/DibujoCurvas.h"

#include "sample/conversaciones/CambiosPendienteTIN.h"
#include "sample/conversaciones/Curvado.h"
#include "sample/conversaciones/CurvadoCodigos.h"
#include "sample/conversaciones/CurvadoTriangulacion.h"
#include "sample/conversaciones/GenerarCases.h"
#include "sample/conversaciones/LimpiarRelieve.h"
#include "sample/conversaciones/LimpiarRelieveRangoZ.h"
#include "sample/conversaciones/SuavizarTIN.h"
#include "sample/conversaciones/Triangulacion.h"
#include "sample/conversaciones/Triangulacion2D.h"
#include "sample/conversaciones/Triangulacion3D.h"
#include "sample/conversaciones/Triangulacion3DDisco.h"
#include "sample/conversaciones/VectoresPendiente.h"

const std::vector<Conversacion>& Conversaciones() {
    static const std::vector<Conversacion> conversaciones = {
        {L"Triangulation", L"Triangulation options", L"TriangulacionDlg", 150083,
         PreparaTriangulacion, AbreTriangulacion, FichaTriangulacion, ConduceTriangulacion},
        {L"Triangulation", L"Classifications, 2D", L"Triangulacion2DDlg", 0, PreparaTriangulacion2D,
         AbreTriangulacion2D, FichaTriangulacion2D, ConduceTriangulacion2D},
        {L"Triangulation", L"Classifications, 3D", L"Triangulacion3DDlg", 0, PreparaTriangulacion3D,
         AbreTriangulacion3D, FichaTriangulacion3D, ConduceTriangulacion3D},
        {L"Triangulation", L"Several files", L"Triangulacion3DDiscoDlg", 0,
         PreparaTriangulacion3DDisco, AbreTriangulacion3DDisco, FichaTriangulacion3DDisco,
         ConduceTriangulacion3DDisco},
        {L"Triangulation", L"Case generation", L"GenerarCasesDlg", 0, PreparaGenerarCases,
         AbreGenerarCases, FichaGenerarCases, ConduceGenerarCases},
        {L"Triangulation", L"Smoothing", L"SuavizarTINDlg", 151186, PreparaSuavizarTIN,
         AbreSuavizarTIN, FichaSuavizarTIN, ConduceSuavizarTIN},
        {L"Triangulation", L"Cleaning", L"LimpiarRelieveDlg", 150073, PreparaLimpiarRelieve,
         AbreLimpiarRelieve, FichaLimpiarRelieve, ConduceLimpiarRelieve},
        {L"Triangulation", L"Cleaning by elevation", L"LimpiarRelieveRangoZDlg", 150139,
         PreparaLimpiarRelieveRangoZ, AbreLimpiarRelieveRangoZ, FichaLimpiarRelieveRangoZ,
         ConduceLimpiarRelieveRangoZ},
        {L"Contours and slopes", L"Contour options", L"CurvadoDlg", 151165, PreparaCurvado,
         AbreCurvado, FichaCurvado, ConduceCurvado, DibujaCurvas},
        {L"Contours and slopes", L"Contour codes", L"CurvadoCodigosDlg", 151074,
         PreparaCurvadoCodigos, AbreCurvadoCodigos, FichaCurvadoCodigos, ConduceCurvadoCodigos},
        {L"Contours and slopes", L"Contours from a triangulation", L"CurvadoTriangulacionDlg", 0,
         PreparaCurvadoTriangulacion, AbreCurvadoTriangulacion, FichaCurvadoTriangulacion,
         ConduceCurvadoTriangulacion},
        {L"Contours and slopes", L"Slope vectors", L"VectoresPendienteDlg", 151299,
         PreparaVectoresPendiente, AbreVectoresPendiente, FichaVectoresPendiente,
         ConduceVectoresPendiente},
        {L"Contours and slopes", L"Slope changes", L"CambiosPendienteTINDlg", 151185,
         PreparaCambiosPendienteTIN, AbreCambiosPendienteTIN, FichaCambiosPendienteTIN,
         ConduceCambiosPendienteTIN},
    };
    return conversaciones;
}
