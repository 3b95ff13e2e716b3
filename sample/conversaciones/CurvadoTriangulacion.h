#pragma once

#include <afxwin.h>

#include "sample/Ficha.h"
#include "sample/Terreno.h"
#include "sample/Visita.h"

void PreparaCurvadoTriangulacion(Terreno& terreno);
INT_PTR AbreCurvadoTriangulacion(Terreno& terreno, CWnd* padre);
Ficha FichaCurvadoTriangulacion(const Terreno& terreno);
void ConduceCurvadoTriangulacion(Visita& visita);
