#pragma once

#include <afxwin.h>

#include "sample/Ficha.h"
#include "sample/Terreno.h"
#include "sample/Visita.h"

void PreparaCurvadoCodigos(Terreno& terreno);
INT_PTR AbreCurvadoCodigos(Terreno& terreno, CWnd* padre);
Ficha FichaCurvadoCodigos(const Terreno& terreno);
void ConduceCurvadoCodigos(Visita& visita);
