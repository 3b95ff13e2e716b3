#pragma once

#include <afxwin.h>

#include "sample/Ficha.h"
#include "sample/Terreno.h"
#include "sample/Visita.h"

void PreparaTriangulacion3D(Terreno& terreno);
INT_PTR AbreTriangulacion3D(Terreno& terreno, CWnd* padre);
Ficha FichaTriangulacion3D(const Terreno& terreno);
void ConduceTriangulacion3D(Visita& visita);
