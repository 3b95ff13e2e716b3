# Tours of files that the scripts know nothing of: one code and a thousand, odd texts, one
# classification and all that there can be, a flat terrain and a single cell, huge values, missing
# ones.
#   cmake -D EMULATOR=... -D TOUR=... -D WORK=... -P AnyFiles.cmake
function(tour codes grid classifications)
  file(WRITE ${WORK}/any-codes.txt "${codes}")
  file(WRITE ${WORK}/any-grid.asc "${grid}")
  file(WRITE ${WORK}/any-classifications.txt "${classifications}")
  execute_process(
    COMMAND ${EMULATOR} ${TOUR} tour-any --grid any-grid.asc --classifications
            any-classifications.txt any-codes.txt
    WORKING_DIRECTORY ${WORK}
    RESULT_VARIABLE result
    OUTPUT_VARIABLE output
    ERROR_VARIABLE error)
  if(NOT result EQUAL 0 OR NOT output MATCHES "contours and [0-9]+ labels drawn")
    message(FATAL_ERROR "exit code ${result}, output: ${output}\nerror: ${error}")
  endif()
endfunction()

set(thousand "")
foreach(number RANGE 1 1000)
  string(APPEND thousand "C${number};Code;${number}\n")
endforeach()
set(all "")
foreach(number RANGE 255)
  string(APPEND all "${number};2147483647;\"${number}\" & %s <b>\n")
endforeach()

# The script names these codes and these classifications, but there are no others. Fifteen digits are
# too few for the elevations.
tour("POL-E;The only one;1\n"
     "ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 1\n3.00000000000000044 3.00000000000000044
      3.00000000000000044 3.00000000000000044\n" "7;0;Low point (noise)\n")
tour("&A%s;100%;0\nñ-日本;árbol;1\n<A>;a > \"b\";2\n-x;,;3\n"
     "ncols 3\nnrows 2\nxllcorner 1e9\nyllcorner -1e9\ncellsize 1e9\n-1e9 1e9 -9999 1e9 -1e9 1e9\n"
     "${all}")
tour("${thousand}" "ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 1e-6\n0 0.001 0.002 -9999\n"
     "1;1;Ground\n2;2;Ground\n")
