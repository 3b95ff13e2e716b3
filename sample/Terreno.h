#pragma once

#include <afx.h>

#include <vector>

#include "cotana/entidad/DigiTab.h"
#include "cotana/entidad/InfoClasificacion.h"
#include "cotana/triangulacion/DataLimpiarRelieve.h"
#include "cotana/triangulacion/DataLimpiarRelieveRangoZ.h"
#include "cotana/triangulacion/DataSuavizarTIN.h"
#include "cotana/triangulacion/DataTriangulacion.h"

// Where a dialog edits plain variables, they are the host's own record.

struct DatosTriangulacion2D {
    double valor = 1;
    CString nombre = L"Site plan";
    std::vector<int> seleccion; ///< Indices of the survey's classifications.
    int casilla = 0;
};

struct DatosTriangulacion3D {
    double valor = 1;
    int entero = 0;
    std::vector<int> seleccion; ///< Indices of the survey's classifications.
    int casilla = 0;
};

struct DatosTriangulacion3DDisco {
    std::vector<CString> ficheros; ///< Full paths.
    double valor = 10;
    int opcion = 0;
};

struct DatosGenerarCases {
    std::vector<CString> ficheros; ///< Full paths.
    double valor = 100;
};

/// What the host owns: the survey, and one record for each conversation.
struct Terreno {
    Cotana::CDigiTab codigos;
    std::vector<Cotana::CInfoClasificacion> clasificaciones;
    CString carpetaNubes; ///< Where the survey's point clouds are.

    Cotana::CDataTriangulacion triangulacion;
    DatosTriangulacion2D triangulacion2D;
    DatosTriangulacion3D triangulacion3D;
    DatosTriangulacion3DDisco triangulacion3DDisco;
    DatosGenerarCases generarCases;
    Cotana::CDataSuavizarTIN suavizado;
    Cotana::CDataLimpiarRelieve limpieza;
    Cotana::CDataLimpiarRelieveRangoZ limpiezaRangoZ;
};
