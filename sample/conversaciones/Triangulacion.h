#pragma once

#include <afxwin.h>

#include "sample/Ficha.h"
#include "sample/Terreno.h"
#include "sample/Visita.h"

void PreparaTriangulacion(Terreno& terreno);
INT_PTR AbreTriangulacion(Terreno& terreno, CWnd* padre);
Ficha FichaTriangulacion(const Terreno& terreno);
void ConduceTriangulacion(Visita& visita);
