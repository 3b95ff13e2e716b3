#pragma once

#include <afxwin.h>

#include "sample/Ficha.h"
#include "sample/Terreno.h"
#include "sample/Visita.h"

void PreparaTriangulacion2D(Terreno& terreno);
INT_PTR AbreTriangulacion2D(Terreno& terreno, CWnd* padre);
Ficha FichaTriangulacion2D(const Terreno& terreno);
void ConduceTriangulacion2D(Visita& visita);
