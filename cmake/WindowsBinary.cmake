# What every binary of the project has in common: language level, warnings, hardening,
# Unicode, and the place where all of them meet (one folder, so that they find each other).

set(CUADROS_BINARY_DIR ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CUADROS_BINARY_DIR})
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CUADROS_BINARY_DIR})
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

add_library(cuadros_options INTERFACE)
target_compile_definitions(cuadros_options INTERFACE UNICODE _UNICODE WINVER=0x0601
                                                     _WIN32_WINNT=0x0601)
if(MINGW)
  target_compile_options(
    cuadros_options
    INTERFACE $<$<COMPILE_LANGUAGE:C,CXX>:-Wall>
              $<$<COMPILE_LANGUAGE:C,CXX>:-Wextra>
              $<$<COMPILE_LANGUAGE:C,CXX>:-Werror>
              $<$<COMPILE_LANGUAGE:C,CXX>:-fstack-protector-strong>
              # Wine's debugger and addr2line read line numbers of this version.
              $<$<COMPILE_LANGUAGE:C,CXX>:-gdwarf-4>
              # windres: sources and texts are UTF-8.
              $<$<COMPILE_LANGUAGE:RC>:-c65001>)
  target_compile_definitions(cuadros_options
                             INTERFACE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS _DEBUG>)
  target_link_options(cuadros_options INTERFACE -Wl,--dynamicbase,--nxcompat,--high-entropy-va)
  # The stack protector's own functions: linked in, one DLL less to ship.
  add_library(cuadros_stack_guard STATIC ${CMAKE_CURRENT_LIST_DIR}/stack_guard.cpp)
  target_link_libraries(cuadros_options INTERFACE cuadros_stack_guard)
else()
  target_compile_options(cuadros_options INTERFACE /W4 /utf-8)
endif()

# For folders whose programs run in the build and its tests only: quick to compile, with the line
# numbers that a stack needs.
set(CUADROS_QUICK $<$<AND:$<COMPILE_LANGUAGE:C,CXX>,$<CONFIG:RelWithDebInfo>>:-O0>
                  $<$<AND:$<COMPILE_LANGUAGE:C,CXX>,$<CONFIG:RelWithDebInfo>>:-g1>)

# The target's sources have the framework's headers precompiled. With genuine MFC, which then has
# the names of these targets, nothing is.
function(cuadros_precompile target)
  if(CUADROS_FRAMEWORK STREQUAL "runtime")
    target_precompile_headers(${target} REUSE_FROM afx_app_module)
  endif()
endfunction()

# The test contract.headers compiles each public header of the target alone. At the end of a
# CMakeLists.txt: the options are for that compilation, which CMake makes last of all.
function(cuadros_check_headers target)
  set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
  if(MINGW)
    add_compile_options(-Wall -Wextra -Werror -O0 -g0)
  endif()
endfunction()
