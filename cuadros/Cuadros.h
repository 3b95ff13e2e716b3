// All dialogs and records of the library.
#pragma once

#include "cuadros/contours/CambiosPendienteTINDlg.h"
#include "cuadros/contours/CurvadoCodigosDlg.h"
#include "cuadros/contours/CurvadoDlg.h"
#include "cuadros/contours/CurvadoTriangulacionDlg.h"
#include "cuadros/contours/VectoresPendienteDlg.h"
#include "cuadros/import/DataImportarGTOPO30.h"
#include "cuadros/import/DataImportarGrid.h"
#include "cuadros/triangulation/GenerarCasesDlg.h"
#include "cuadros/triangulation/LimpiarRelieveDlg.h"
#include "cuadros/triangulation/LimpiarRelieveRangoZDlg.h"
#include "cuadros/triangulation/SuavizarTINDlg.h"
#include "cuadros/triangulation/Triangulacion2DDlg.h"
#include "cuadros/triangulation/Triangulacion3DDiscoDlg.h"
#include "cuadros/triangulation/Triangulacion3DDlg.h"
#include "cuadros/triangulation/TriangulacionDlg.h"
