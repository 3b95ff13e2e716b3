#pragma once

#include <afx.h>

#include <string>
#include <vector>

#include "cotana/entidad/DigiTab.h"
#include "cotana/entidad/InfoClasificacion.h"
#include "cotana/entidad/Maximas.h"

/// One field of a record, for a person to read.
struct Campo {
    CString nombre;
    CString valor;

    bool operator==(const Campo&) const = default;
};

/// A record's fields, in the order of their declaration.
using Ficha = std::vector<Campo>;

/// A number in the shortest form that reads back as the same one (15 digits at most).
CString Valor(double numero);
CString Valor(int numero);
CString Valor(unsigned int numero);
/// A text in quotes.
CString Valor(const CString& texto);
/// A place, and extents, on the map: "437200, 4486300", "437200 to 438400, 4486300 to 4487200".
CString Valor(const Cotana::CCoor3D<double>& lugar);
CString Valor(const Cotana::CMaximas<double>& extension);
/// How many codes a table has, and the first of them: "63: CP, CP-T, BM, GCP, GND, ...".
CString Valor(const Cotana::CDigiTab& tabla);
/// The same of numbers, of classifications by their number, and of files by their name.
CString Valor(const std::vector<int>& numeros);
CString Valor(const std::vector<Cotana::CInfoClasificacion>& clasificaciones);
CString Valor(const std::vector<CString>& ficheros);

/// The record before and after a conversation, a field per line; a changed one is marked with *.
/// The two have the same fields.
CString AntesYDespues(const Ficha& antes, const Ficha& despues);

/// UTF-8 of a text.
std::string Utf8(const CString& texto);

/// Writes a text in UTF-8 to the standard output, or with `error` to the error output.
/// @return false when the program has no such output, as when a window's icon started it.
bool Escribe(const CString& texto, bool error = false);
