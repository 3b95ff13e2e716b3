#include "cuadros/contours/CurvadoTriangulacionDlg.h"

#include "checks/Comprobaciones.h"
#include "cuadros/resources/ContoursIds.h"
#include "cuadros/resources/IconIds.h"
