#pragma once

#include <afxwin.h>

#include "sample/Ficha.h"
#include "sample/Terreno.h"
#include "sample/Visita.h"

void PreparaGenerarCases(Terreno& terreno);
INT_PTR AbreGenerarCases(Terreno& terreno, CWnd* padre);
Ficha FichaGenerarCases(const Terreno& terreno);
void ConduceGenerarCases(Visita& visita);
