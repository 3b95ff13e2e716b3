#pragma once

#include <afx.h>

/// What came of a command of the host.
struct Hecho {
    CString texto;      ///< One line for the user.
    bool fallo = false; ///< The command was not carried out.
    CString dibujo; ///< Name of an SVG file in the folder of drawings; empty when there is none.
};
