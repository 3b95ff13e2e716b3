#pragma once

#include "cotana/entidad/DigiTab.h"
#include "cotana/triangulacion/DataTriangulacion.h"

/// What the host owns: the survey, and one record for each conversation.
struct Terreno {
    Cotana::CDigiTab codigos;
    Cotana::CDataTriangulacion triangulacion;
};
