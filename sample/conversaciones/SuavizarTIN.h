#pragma once

#include <afxwin.h>

#include "sample/Ficha.h"
#include "sample/Terreno.h"
#include "sample/Visita.h"

void PreparaSuavizarTIN(Terreno& terreno);
INT_PTR AbreSuavizarTIN(Terreno& terreno, CWnd* padre);
Ficha FichaSuavizarTIN(const Terreno& terreno);
void ConduceSuavizarTIN(Visita& visita);
