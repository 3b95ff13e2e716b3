#pragma once

#include <afxwin.h>

#include "sample/Ficha.h"
#include "sample/Terreno.h"
#include "sample/Visita.h"

void PreparaCambiosPendienteTIN(Terreno& terreno);
INT_PTR AbreCambiosPendienteTIN(Terreno& terreno, CWnd* padre);
Ficha FichaCambiosPendienteTIN(const Terreno& terreno);
void ConduceCambiosPendienteTIN(Visita& visita);
