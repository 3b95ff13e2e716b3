// The system's dialogs.
#pragma once

#include "afxwin.h"

#include "afxrt/common_dialogs.h"
