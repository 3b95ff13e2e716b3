# The sample host refuses a bad code table: one line, exit code 1.
#   cmake -D EMULATOR=... -D PROGRAM=... -D WORK=... -P BadFile.cmake
file(WRITE ${WORK}/bad.txt "A;Good;1\nB;Bad\n")
execute_process(
  COMMAND ${EMULATOR} ${PROGRAM} --tour ${WORK}/tour bad.txt
  WORKING_DIRECTORY ${WORK}
  RESULT_VARIABLE result
  OUTPUT_VARIABLE output
  ERROR_VARIABLE error)
set(expected "bad.txt(2): a line is code;mnemonic;style: three fields, not 2\n")
if(NOT result EQUAL 1 OR NOT output STREQUAL "" OR NOT error STREQUAL expected)
  message(FATAL_ERROR "exit code ${result}, output: ${output}\nerror: ${error}")
endif()
