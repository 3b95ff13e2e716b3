# Visual Studio's MFC in the place of framework/, under the target names that the library and a
# host link. This has been written to Microsoft's documentation and never been run: the machine
# on which the project is made has no Visual Studio.
if(NOT MSVC)
  message(FATAL_ERROR "CUADROS_FRAMEWORK=mfc needs Visual Studio with its MFC component.")
endif()

# 2: the shared MFC, which is the only one that a host and the library can have in common.
set(CMAKE_MFC_FLAG 2)

add_library(afxrt INTERFACE)
target_compile_definitions(afxrt INTERFACE _AFXDLL)

# What framework/ links into each DLL and each program, MFC brings by itself.
add_library(afx_dll_module INTERFACE)
target_compile_definitions(afx_dll_module INTERFACE _USRDLL _WINDLL)
add_library(afx_app_module INTERFACE)
