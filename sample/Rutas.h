#pragma once

#include <afx.h>

/// A file of the project, looked for in the program's folder and in those above it.
///
/// @param relativo its place in the project: "docs\dialogs\TriangulacionDlg.md".
/// @return its full path; `relativo` itself when it is in none of them.
CString BuscaHaciaArriba(const CString& relativo);

/// The full path of a file; its own name where Windows knows none.
CString RutaCompleta(const CString& fichero);

/// Makes a folder, and those above it, unless it is there.
///
/// @param carpeta  its name; empty is the current folder.
/// @param completa its full path afterwards.
/// @return empty; else one line that names it and says that it cannot be made.
CString HazCarpeta(const CString& carpeta, CString& completa);
