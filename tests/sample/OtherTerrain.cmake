# A tour of a terrain of one's own, below the sea: its elevations reach the dialog, its contours the
# drawings, and these the page.
#   cmake -D EMULATOR=... -D TOUR=... -D WORK=... -P OtherTerrain.cmake
set(row "")
foreach(column RANGE 20)
  math(EXPR elevation "-60 + 3 * ${column}")
  string(APPEND row "${elevation} ")
endforeach()
string(REPEAT "${row}\n" 11 rows)
file(WRITE ${WORK}/slope.asc
     "ncols 21\nnrows 11\nxllcorner 437200\nyllcorner 4486300\ncellsize 10\n${rows}")
file(REMOVE_RECURSE ${WORK}/tour-slope ${WORK}/drawings)
execute_process(
  COMMAND ${EMULATOR} ${TOUR} tour-slope --grid slope.asc --drawings drawings
  WORKING_DIRECTORY ${WORK}
  RESULT_VARIABLE result
  OUTPUT_VARIABLE output
  ERROR_VARIABLE error)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "exit code ${result}, output: ${output}\nerror: ${error}")
endif()

# The multiples of 2 m, which suits the terrain, from -54 m to -6 m, a tenth of the way from either
# end; of the eastern half every second node; a code that was typed elsewhere is in its record; and
# help was asked for.
foreach(expected "help asked for at context 151165" "m_CotaMinima +-60 +-> -54" "m_CotaMaxima +0 +-> -6" "m_Cadena +\"\" +-> \"CN\"" "  25 contours and [0-9]+ labels" "  25 nodes imported")
  if(NOT output MATCHES "${expected}")
    message(FATAL_ERROR "The tour does not say: ${expected}\n${output}")
  endif()
endforeach()
foreach(drawing contours.dxf contours.svg imported-grid.asc imported-tile.asc)
  if(NOT EXISTS ${WORK}/drawings/${drawing} OR EXISTS ${WORK}/tour-slope/${drawing})
    message(FATAL_ERROR "${drawing} is not where it should be")
  endif()
endforeach()
file(READ ${WORK}/tour-slope/index.html page)
if(NOT page MATCHES "data:image/svg")
  message(FATAL_ERROR "The page lacks the drawing")
endif()
