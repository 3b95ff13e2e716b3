// How the symbols of the host's libraries cross the border of their DLL.
#pragma once

#if defined(COTANA_BUILD)
#define COTANA_API __declspec(dllexport)
#else
#define COTANA_API __declspec(dllimport)
#endif
