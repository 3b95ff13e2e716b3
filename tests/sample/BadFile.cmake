# The sample host refuses a bad code table, a bad grid, a folder that cannot be one, and a page that
# cannot be written: one line, exit code 1.
#   cmake -D EMULATOR=... -D PROGRAM=... -D WORK=... -P BadFile.cmake
function(expect_refusal expected)
  execute_process(
    COMMAND ${EMULATOR} ${PROGRAM} ${ARGN}
    WORKING_DIRECTORY ${WORK}
    RESULT_VARIABLE result
    OUTPUT_VARIABLE output
    ERROR_VARIABLE error)
  if(NOT result EQUAL 1 OR NOT output STREQUAL "" OR NOT error STREQUAL "${expected}\n")
    message(FATAL_ERROR "exit code ${result}, output: ${output}\nerror: ${error}")
  endif()
endfunction()

file(WRITE ${WORK}/bad.txt "A;Good;1\nB;Bad\n")
expect_refusal("bad.txt(2): a line is code;mnemonic;style: three fields, not 2" --tour
               ${WORK}/tour bad.txt)

file(WRITE ${WORK}/bad.asc "ncols 2\nnrows 2\nxllcentre 0\n")
expect_refusal("bad.asc(3): the header key is unknown: xllcentre" --tour ${WORK}/tour --grid bad.asc)

expect_refusal("bad.txt: the folder cannot be made" --tour ${WORK}/tour --drawings bad.txt)
expect_refusal("bad.txt: the folder cannot be made" --tour bad.txt)

# Where the page should be there is a folder. The tour has told all it has seen by then.
file(REMOVE_RECURSE ${WORK}/tour-bad)
file(MAKE_DIRECTORY ${WORK}/tour-bad/index.html)
execute_process(
  COMMAND ${EMULATOR} ${PROGRAM} --tour tour-bad
  WORKING_DIRECTORY ${WORK}
  RESULT_VARIABLE result
  OUTPUT_QUIET
  ERROR_VARIABLE error)
if(NOT result EQUAL 1 OR NOT error MATCHES "index.html: the file cannot be written \\(Windows error 5\\)\n$")
  message(FATAL_ERROR "exit code ${result}, error: ${error}")
endif()
