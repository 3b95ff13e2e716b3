#pragma once

#include <afxwin.h>

#include "sample/Ficha.h"
#include "sample/Terreno.h"
#include "sample/Visita.h"

void PreparaTriangulacion3DDisco(Terreno& terreno);
INT_PTR AbreTriangulacion3DDisco(Terreno& terreno, CWnd* padre);
Ficha FichaTriangulacion3DDisco(const Terreno& terreno);
void ConduceTriangulacion3DDisco(Visita& visita);
