#pragma once

#include <afxwin.h>

#include "sample/Ficha.h"
#include "sample/Terreno.h"
#include "sample/Visita.h"

void PreparaCurvado(Terreno& terreno);
INT_PTR AbreCurvado(Terreno& terreno, CWnd* padre);
Ficha FichaCurvado(const Terreno& terreno);
void ConduceCurvado(Visita& visita);
