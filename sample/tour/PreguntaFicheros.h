// The host's file prompt on the tour: what the conversations that ask for files do with it.
#pragma once

#include <initializer_list>
#include <string>

#include "sample/tour/Visita.h"

/// The full path of one of the sample's point clouds.
std::wstring NubeDePuntos(const std::wstring& nombre);

/// The next prompt is confirmed with these names of the folder that it shows.
void RespondePregunta(Visita& visita, std::initializer_list<const wchar_t*> nombres);
