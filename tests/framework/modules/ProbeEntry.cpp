// The entry of a regular DLL, as the framework links it into each, with every step written down.
#include "Diary.h"

#include <afxwin.h>

#include <new>
#include <utility>

#define NOTED(name, ...)            (Note(#name), name(__VA_ARGS__))
#define AfxCoreInitModule()         NOTED(AfxCoreInitModule)
#define AfxWinInit(...)             NOTED(AfxWinInit, __VA_ARGS__)
#define AfxWinTerm()                NOTED(AfxWinTerm)
#define AfxInitExtensionModule(...) NOTED(AfxInitExtensionModule, __VA_ARGS__)
#define AfxTermExtensionModule(...) NOTED(AfxTermExtensionModule, __VA_ARGS__)
#define AfxTermThread(...)          NOTED(AfxTermThread, __VA_ARGS__)
#define CDynLinkLibrary(module)     CDynLinkLibrary((Note("CDynLinkLibrary"), module))
#define Delete()                    Delete(), Note("exception deleted")

#include "framework/module/regular_dll.cpp"
