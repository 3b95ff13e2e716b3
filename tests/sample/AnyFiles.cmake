# Tours of files that the scripts know nothing of: one code and a thousand, odd texts, one
# classification and all that there can be, a flat terrain and a single cell, huge values, missing
# ones; tiles at both ends of the Earth and across its zero, of which too few nodes are taken.
#   cmake -D EMULATOR=... -D TOUR=... -D WORK=... -P AnyFiles.cmake
function(tour codes grid classifications west north spacing)
  file(WRITE ${WORK}/any-codes.txt "${codes}")
  file(WRITE ${WORK}/any-grid.asc "${grid}")
  file(WRITE ${WORK}/any-classifications.txt "${classifications}")
  file(WRITE ${WORK}/any-tile.DEM "123456789012")
  file(WRITE ${WORK}/any-tile.HDR
       "BYTEORDER M LAYOUT BIL NROWS 2 NCOLS 3 NBANDS 1 NBITS 16 BANDROWBYTES 6 TOTALROWBYTES 6
        BANDGAPBYTES 0 NODATA 12849 ULXMAP ${west} ULYMAP ${north} XDIM ${spacing} YDIM ${spacing}")
  execute_process(
    COMMAND ${EMULATOR} ${TOUR} tour-any --grid any-grid.asc --tile any-tile.DEM --classifications
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
      3.00000000000000044 3.00000000000000044\n" "7;0;Low point (noise)\n" -180 90 90)
tour("&A%s;100%;0\nñ-日本;árbol;1\n<A>;a > \"b\";2\n-x;,;3\n"
     "ncols 3\nnrows 2\nxllcorner 1e9\nyllcorner -1e9\ncellsize 1e9\n-1e9 1e9 -9999 1e9 -1e9 1e9\n"
     "${all}" 179.5 -89.5 0.008333333333333333)
tour("${thousand}" "ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 1e-6\n0 0.001 0.002 -9999\n"
     "1;1;Ground\n2;2;Ground\n" -0.5 0.5 0.3)
