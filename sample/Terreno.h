#pragma once

#include <afx.h>

#include <vector>

#include "cotana/dibujo/DataTipoProyeccion.h"
#include "cotana/entidad/DigiTab.h"
#include "cotana/entidad/InfoClasificacion.h"
#include "cotana/modelo/DataCambiosPendiente.h"
#include "cotana/modelo/DataCurvado.h"
#include "cotana/modelo/DataProyectaDEM.h"
#include "cotana/modelo/DataVectoresPendiente.h"
#include "cotana/triangulacion/DataLimpiarRelieve.h"
#include "cotana/triangulacion/DataLimpiarRelieveRangoZ.h"
#include "cotana/triangulacion/DataSuavizarTIN.h"
#include "cotana/triangulacion/DataTriangulacion.h"
#include "cuadros/import/DataImportarGTOPO30.h"
#include "cuadros/import/DataImportarGrid.h"
#include "sample/terrain/ElevationGrid.h"

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

struct DatosCurvadoTriangulacion {
    double equidistancia = 1; ///< m.
    CString cadena;           ///< Code of the contours; they have none yet.
};

/// What the host owns: the survey, the terrain model, and one record for each conversation.
struct Terreno {
    Cotana::CDigiTab codigos;
    std::vector<Cotana::CInfoClasificacion> clasificaciones;
    CString carpetaNubes;   ///< Where the survey's point clouds are.
    CString carpetaLimites; ///< Where the boundaries are.
    CString ficheroRejilla; ///< The elevation grid, which is the terrain model and can be imported.
    CString ficheroTesela;  ///< The GTOPO30 tile that can be imported.
    ElevationGrid modelo;
    CString carpetaDibujos; ///< Where drawings are written, and what is imported.

    Cotana::CDataTriangulacion triangulacion;
    DatosTriangulacion2D triangulacion2D;
    DatosTriangulacion3D triangulacion3D;
    DatosTriangulacion3DDisco triangulacion3DDisco;
    DatosGenerarCases generarCases;
    Cotana::CDataSuavizarTIN suavizado;
    Cotana::CDataLimpiarRelieve limpieza;
    Cotana::CDataLimpiarRelieveRangoZ limpiezaRangoZ;
    Cotana::CDataCurvado curvado = {
        .m_ValorAvanzado1 = 0.2,
        .m_ValorAvanzado2 = 1,
        .m_TextoCurvas = TRUE,
        .m_CodigoCurvas1 = L"CN",
        .m_CodigoCurvas2 = L"CNM",
        .m_CodigoCurvas3 = L"CND",
        .m_CodigoCurvas4 = L"CNMD",
        .m_CodigoCurvas5 = L"CNT",
        .m_CurvasARespetar1 = L"CN",
        .m_CurvasARespetar2 = L"CNM",
        .m_FicheroLimite = {},
        .m_Escala = 5000,
    };
    DatosCurvadoTriangulacion curvadoTriangulacion;
    Cotana::CDataVectoresPendiente vectoresPendiente = {
        .m_Cadena1 = L"SLP",
        .m_Cadena2 = L"SLP-T",
        .m_FicheroLimite = {},
    };
    Cotana::CDataCambiosPendiente cambiosPendiente = {.m_CadenaCambio = L"SLC"};
    CDataImportarGrid importarGrid;
    CDataImportarGTOPO30 importarGTOPO30;
    Cotana::CDataTipoProyeccion tipoProyeccion;
    Cotana::CDataProyectaDEM proyectarDEM = {
        .m_Valor = 25,
        .m_FicheroProyeccion = {},
        .m_FicheroInforme = {},
    };
};
