#pragma once

#include <afx.h>

/// A file of the project, looked for in the program's folder and in those above it.
///
/// @param relativo its place in the project: "docs\dialogs\TriangulacionDlg.md".
/// @return its full path; `relativo` itself when it is in none of them.
CString BuscaHaciaArriba(const CString& relativo);
