// All dialogs of the library.
#pragma once

#include "cuadros/triangulation/TriangulacionDlg.h"
