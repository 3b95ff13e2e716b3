// What every header of the runtime starts from: the Windows API, how the runtime's symbols cross
// the border of its DLL, and the calling conventions of MFC's documented names.
#pragma once

#include <windows.h>

#if defined(AFXRT_BUILD)
#define AFXRT_API __declspec(dllexport)
#else
#define AFXRT_API __declspec(dllimport)
#endif

#define AFXAPI    __stdcall
#define AFX_CDECL __cdecl
/// The calling convention of message handlers.
#define AFX_MSG_CALL
