// Extensions of the window classes: everything that this runtime has of them is in afxwin.h.
#pragma once

#include "afxwin.h"
