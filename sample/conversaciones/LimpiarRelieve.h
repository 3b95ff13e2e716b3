#pragma once

#include <afxwin.h>

#include "sample/Ficha.h"
#include "sample/Terreno.h"
#include "sample/Visita.h"

void PreparaLimpiarRelieve(Terreno& terreno);
INT_PTR AbreLimpiarRelieve(Terreno& terreno, CWnd* padre);
Ficha FichaLimpiarRelieve(const Terreno& terreno);
void ConduceLimpiarRelieve(Visita& visita);
