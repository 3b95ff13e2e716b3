# cuadros_test(<name> [SOURCES <file>...] [LIBS <target>...])
#
# Makes the test program <name>_test of every *Test.cpp of the folder, and of the other SOURCES.
# Each *Test.cpp is one ctest entry: DialogTest.cpp is <name>.Dialog. So is a header among SOURCES,
# whose tests several of them share. A further entry, <name>.sources, fails unless every test stands
# in one of them, so that none is silently never run.
function(cuadros_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBS")
  if(arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "cuadros_test(${name}): what is ${arg_UNPARSED_ARGUMENTS}?")
  endif()

  set(program ${name}_test)
  file(GLOB tests CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} *Test.cpp)
  # The manifest makes the program's controls those of the current common controls.
  add_executable(${program} ${tests} ${arg_SOURCES} ${PROJECT_SOURCE_DIR}/tests/kit/manifest.rc)
  target_link_libraries(${program} PRIVATE ${arg_LIBS} kit cuadros_options)
  if(arg_LIBS MATCHES "kit_app|afx_app_module")
    target_precompile_headers(${program} REUSE_FROM kit_app)
  else()
    target_precompile_headers(${program} REUSE_FROM kit)
  endif()

  list(FILTER arg_SOURCES INCLUDE REGEX "\\.h$")
  list(APPEND tests ${arg_SOURCES})
  foreach(source ${tests})
    string(REGEX REPLACE "(Test.cpp|.h)$" "" stem ${source})
    cuadros_add_test(${name}.${stem} ${program} --kit-source=${source})
  endforeach()
  list(JOIN tests "," names)
  cuadros_add_test(${name}.sources ${program} --kit-sources=${names})
endfunction()

# One ctest entry that runs a Windows program.
function(cuadros_add_test name program)
  add_test(
    NAME ${name}
    COMMAND ${program} ${ARGN}
    WORKING_DIRECTORY ${CUADROS_BINARY_DIR})
  # An exception that leaves a window procedure is swallowed by the system; this line of Wine
  # is its only trace.
  set_tests_properties(${name} PROPERTIES TIMEOUT 300 FAIL_REGULAR_EXPRESSION
                                          "err:seh:KiUserCallbackDispatcher")
endfunction()
