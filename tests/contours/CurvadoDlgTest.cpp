#include "cuadros/contours/CurvadoDlg.h"

#include "checks/Comprobaciones.h"
#include "cuadros/resources/ContoursIds.h"
#include "cuadros/resources/IconIds.h"
