// How the symbols of the library cross the border of its DLL.
#pragma once

#if defined(CUADROS_BUILD)
#define CUADROS_API __declspec(dllexport)
#else
#define CUADROS_API __declspec(dllimport)
#endif
