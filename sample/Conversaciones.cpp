#include "sample/Conversacion.h"

#include "sample/conversaciones/GenerarCases.h"
#include "sample/conversaciones/LimpiarRelieve.h"
#include "sample/conversaciones/LimpiarRelieveRangoZ.h"
#include "sample/conversaciones/SuavizarTIN.h"
#include "sample/conversaciones/Triangulacion.h"
#include "sample/conversaciones/Triangulacion2D.h"
#include "sample/conversaciones/Triangulacion3D.h"
#include "sample/conversaciones/Triangulacion3DDisco.h"

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
    };
    return conversaciones;
}
