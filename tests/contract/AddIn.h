// A part of a host that links the library: loading it loads the library, and unloading it lets the
// library go. The test program itself does not link the library.
#pragma once

#include <cotana/triangulacion/DataTriangulacion.h>

/// Called inside the dialog, with the place: the name of the function that calls.
using WatchDialog = void (*)(const char* place);

/// Opens the triangulation options, in a class derived from them, over a record; its handlers call
/// `watch`. The result is DoModal's. Exported by this name.
extern "C" INT_PTR OpenTriangulation(Cotana::CDataTriangulacion& record, WatchDialog watch);
