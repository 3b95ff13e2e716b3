#pragma once

#include <afxwin.h>

#include "sample/Ficha.h"
#include "sample/Terreno.h"
#include "sample/Visita.h"

void PreparaVectoresPendiente(Terreno& terreno);
INT_PTR AbreVectoresPendiente(Terreno& terreno, CWnd* padre);
Ficha FichaVectoresPendiente(const Terreno& terreno);
void ConduceVectoresPendiente(Visita& visita);
