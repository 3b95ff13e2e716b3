# cuadros_test(<folder> SOURCES <file>... SUITES <suite>... [LIBS <target>...])
#
# Makes the test program <folder>_test and one ctest entry per suite, <folder>.<suite>. A
# further entry, <folder>.suites, fails unless SUITES names exactly the suites that the
# program has, so that none is silently never run.
function(cuadros_test folder)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;SUITES;LIBS")
  if(arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "cuadros_test(${folder}): what is ${arg_UNPARSED_ARGUMENTS}?")
  endif()

  set(program ${folder}_test)
  # The manifest makes the program's controls those of the current common controls.
  add_executable(${program} ${arg_SOURCES} ${PROJECT_SOURCE_DIR}/tests/kit/manifest.rc)
  target_link_libraries(${program} PRIVATE ${arg_LIBS} kit cuadros_options)

  foreach(suite ${arg_SUITES})
    # A suite of value or type parameters has its name between slashes.
    cuadros_add_test(${folder}.${suite} ${program}
                     "--gtest_filter=${suite}.*:*/${suite}.*:${suite}/*.*:*/${suite}/*.*")
  endforeach()
  list(JOIN arg_SUITES "," names)
  cuadros_add_test(${folder}.suites ${program} "--kit-suites=${names}")
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
