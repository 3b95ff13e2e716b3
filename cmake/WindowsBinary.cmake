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
