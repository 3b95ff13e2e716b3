# The sample host and its tour refuse a bad command line, a bad file, a folder that cannot be one,
# and what cannot be written: one line, exit code 1.
#   cmake -D EMULATOR=... -D HOST=... -D TOUR=... -D WORK=... -P BadFile.cmake
function(expect_refusal expected program)
  execute_process(
    COMMAND ${EMULATOR} ${program} ${ARGN}
    WORKING_DIRECTORY ${WORK}
    RESULT_VARIABLE result
    OUTPUT_VARIABLE output
    ERROR_VARIABLE error)
  if(NOT result EQUAL 1 OR NOT output STREQUAL "" OR NOT error STREQUAL "${expected}\n")
    message(FATAL_ERROR "exit code ${result}, output: ${output}\nerror: ${error}")
  endif()
endfunction()

set(usage "[--grid ASC-FILE] [--tile DEM-FILE] [--classifications FILE] [--drawings FOLDER] [CODE-TABLE-FILE]")
expect_refusal("--grid wants an elevation grid; usage: Ejemplo ${usage}" ${HOST} --grid --drawings)
expect_refusal("--grid is given twice; usage: Recorrido FOLDER ${usage}" ${TOUR} tour --grid a --grid b)
foreach(folder "" --grid)
  expect_refusal("the tour wants the folder for its results; usage: Recorrido FOLDER ${usage}" ${TOUR}
                 ${folder})
endforeach()

file(WRITE ${WORK}/bad.txt "A;Good;1\nB;Bad\n")
foreach(program IN ITEMS ${HOST} "${TOUR};${WORK}/tour")
  expect_refusal("bad.txt(2): a line is code;mnemonic;style: three fields, not 2" ${program} bad.txt)
endforeach()
expect_refusal("bad.txt(1): the number is not a whole number: A" ${TOUR} ${WORK}/tour
               --classifications bad.txt)
file(WRITE ${WORK}/bad.asc "ncols 2\nnrows 2\nxllcentre 0\n")
expect_refusal("bad.asc(3): the header key is unknown: xllcentre" ${TOUR} ${WORK}/tour --grid bad.asc)
expect_refusal("none.DEM: there is no such file" ${TOUR} ${WORK}/tour --tile none.DEM)

expect_refusal("bad.txt: the folder cannot be made" ${TOUR} ${WORK}/tour --drawings bad.txt)
expect_refusal("bad.txt: the folder cannot be made" ${TOUR} bad.txt)

# Where a file should be written there is a folder: pictures in a dialog and in one that it opens, a
# drawing, the page. The tour ends there, and has told what it has seen by then.
foreach(file "TriangulacionDlg.png: the picture cannot be written"
             "CurvadoDlg-2.png: the picture cannot be written"
             "contours.dxf: the file cannot be written (Windows error 5)"
             "imported-grid.asc: the file cannot be written (Windows error 5)"
             "imported-tile.asc: the file cannot be written (Windows error 5)"
             "index.html: the file cannot be written (Windows error 5)")
  string(REGEX MATCH "^[^:]+" name ${file})
  file(REMOVE_RECURSE ${WORK}/tour-bad)
  file(MAKE_DIRECTORY ${WORK}/tour-bad/${name})
  execute_process(
    COMMAND ${EMULATOR} ${TOUR} tour-bad
    WORKING_DIRECTORY ${WORK}
    RESULT_VARIABLE result
    OUTPUT_QUIET
    ERROR_VARIABLE error)
  # Wine's own words about file prompts.
  string(REGEX REPLACE "wine: Read access denied[^\n]*\n" "" error "${error}")
  string(REGEX REPLACE "^[^\n]*\\\\" "" error "${error}")
  if(NOT result EQUAL 1 OR NOT error STREQUAL "${file}\n")
    message(FATAL_ERROR "${name}: exit code ${result}, error: ${error}")
  endif()
endforeach()
