#pragma once

#include <afxwin.h>

#include "sample/Ficha.h"
#include "sample/Terreno.h"
#include "sample/Visita.h"

void PreparaLimpiarRelieveRangoZ(Terreno& terreno);
INT_PTR AbreLimpiarRelieveRangoZ(Terreno& terreno, CWnd* padre);
Ficha FichaLimpiarRelieveRangoZ(const Terreno& terreno);
void ConduceLimpiarRelieveRangoZ(Visita& visita);
