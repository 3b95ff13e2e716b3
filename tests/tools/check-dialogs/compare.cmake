# Runs the checker over the faulty binaries: it has to fail, with exactly the expected findings.
execute_process(
  COMMAND ${EMULATOR} ${CHECKER} --language ${LANGUAGE} --library ${LIBRARY} --fragments
          ${SOURCE}/fragments --allowed ${SOURCE}/allowed.txt --ids ${SOURCE}/FaultyIds.h
  OUTPUT_VARIABLE found
  RESULT_VARIABLE result)
string(REPLACE "\r" "" found "${found}")
if(DEFINED WRITE)
  file(WRITE ${WRITE} "${found}")
endif()
file(READ ${SOURCE}/expected.txt expected)
if(NOT result EQUAL 1)
  message(FATAL_ERROR "The checker ended with ${result}; 1 was expected:\n${found}")
endif()
if(NOT found STREQUAL expected)
  message(FATAL_ERROR "Found:\n${found}\nExpected:\n${expected}")
endif()
