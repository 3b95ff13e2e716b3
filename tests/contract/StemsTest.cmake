# The check of the stems, over a made tree with something of each kind: it passes, and with each
# piece taken away in turn it names that piece and no other.
#   cmake -D CHECK=.../CheckStems.cmake -D WORK=... -P StemsTest.cmake
cmake_minimum_required(VERSION 3.25)

file(WRITE ${WORK}/Lists.cmake [[
set(DIALOGS colours/RampDlg colours/LightDlg)
set(INTERNAL colours/RampDlg/StepDlg)
set(SHEETS colours/RoadDlg)
set(PAGES colours/RoadDlg/RoadPage1)
set(RECORDS colours/DataRamp)
set(SOURCES colours/Shared.cpp colours/Limits.h)
]])
set(tree ${WORK}/tree)

set(code cuadros/colours)
set(templates cuadros/resources/en-US/colours)
set(pieces
    ${code}/RampDlg.h ${code}/RampDlg.cpp ${templates}/RampDlg.rc tests/colours/RampDlgTest.cpp
    docs/dialogs/RampDlg.md docs/dialogs/RampDlg.png
    ${code}/LightDlg.h ${code}/LightDlg.cpp ${templates}/LightDlg.rc tests/colours/LightDlgTest.cpp
    docs/dialogs/LightDlg.md docs/dialogs/LightDlg.png
    ${code}/StepDlg.h ${code}/StepDlg.cpp ${templates}/StepDlg.rc tests/colours/StepDlgTest.cpp
    docs/dialogs/StepDlg.png
    ${code}/RoadDlg.h ${code}/RoadDlg.cpp tests/colours/RoadDlgTest.cpp docs/dialogs/RoadDlg.md
    docs/dialogs/RoadDlg.png
    ${code}/RoadPage1.h ${code}/RoadPage1.cpp ${templates}/RoadPage1.rc
    tests/colours/RoadPage1Test.cpp docs/dialogs/RoadPage1.png
    ${code}/DataRamp.h ${code}/DataRamp.cpp tests/colours/DataRampTest.cpp docs/records/DataRamp.md)
set(shared ${code}/Shared.h ${code}/Shared.cpp ${code}/Limits.h)

# A whole tree, without one of its files.
function(make_tree without)
  file(REMOVE_RECURSE ${tree})
  foreach(piece ${pieces} ${shared})
    file(WRITE ${tree}/${piece} "\n")
  endforeach()
  file(WRITE ${tree}/docs/dialogs/RampDlg.md "# Ramp\n\n## A step: `CStepDlg`\n")
  file(WRITE ${tree}/docs/dialogs/RoadDlg.md "# Road\n\n### `CRoadPage1`, the first page\n")
  file(WRITE ${tree}/tests/dialogs/Casos.cpp "De<CRampDlg>(1), De<CLightDlg>(2)\n")
  # One source of the sample may serve two dialogs.
  foreach(part conversaciones tour/guiones)
    file(WRITE ${tree}/sample/${part}/Colours.cpp "{L\"RampDlg\"}, {L\"LightDlg\"}\n")
    file(WRITE ${tree}/sample/${part}/Road.cpp "{L\"RoadDlg\"}\n")
  endforeach()
  if(without)
    file(REMOVE ${tree}/${without})
  endif()
endfunction()

# The check's answer, on one line; empty when it passes.
function(check result)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -D ROOT=${tree} -D LISTS=${WORK}/Lists.cmake -P ${CHECK}
    RESULT_VARIABLE failed
    ERROR_VARIABLE said)
  if(NOT failed)
    set(said "")
  elseif(NOT said MATCHES "Missing:")
    message(FATAL_ERROR "The check has failed by itself: ${said}")
  endif()
  string(REGEX REPLACE "^.*Missing:" "" said "${said}")
  string(REGEX REPLACE "[ \n]+" " " said "${said}")
  string(STRIP "${said}" said)
  set(${result} "${said}" PARENT_SCOPE)
endfunction()

function(expect what expected)
  check(said)
  if(NOT said STREQUAL expected)
    message(SEND_ERROR "${what}: the check says\n  ${said}\nand should say\n  ${expected}")
  endif()
endfunction()

make_tree("")
expect("A whole tree" "")

foreach(piece ${pieces})
  make_tree(${piece})
  # With its page a dialog loses the sections that are in it.
  set(expected ${piece})
  if(piece STREQUAL "docs/dialogs/RampDlg.md")
    string(APPEND expected " the section of CStepDlg in ${piece}")
  elseif(piece STREQUAL "docs/dialogs/RoadDlg.md")
    string(APPEND expected " the section of CRoadPage1 in ${piece}")
  endif()
  expect("Without ${piece}" "${expected}")
endforeach()

make_tree("")
file(WRITE ${tree}/docs/dialogs/RampDlg.md "# Ramp\n\n## `CStepDlgs`\n\nOf `CStepDlg` no heading.\n")
expect("A class that no heading names" "the section of CStepDlg in docs/dialogs/RampDlg.md")

foreach(part conversaciones tour/guiones)
  make_tree(sample/${part}/Road.cpp)
  expect("A sheet without a source" "the source of RoadDlg in sample/${part}")
  make_tree("")
  file(WRITE ${tree}/sample/${part}/Colours.cpp "{L\"RampDlg\"}, {L\"LightDlgs\"}\n")
  expect("A dialog without a source" "the source of LightDlg in sample/${part}")
endforeach()

make_tree("")
file(WRITE ${tree}/tests/dialogs/Casos.cpp "De<CRampDlg>(1), De<CLightDlgs>(2), CLightDlg>\n")
expect("A dialog without a case" "the line of LightDlg in tests/dialogs/Casos.cpp")

foreach(file NewDlg.h Helper.cpp)
  make_tree("")
  file(WRITE ${tree}/${code}/${file} "\n")
  expect("A file that nobody told of" "${code}/${file} in ${code}/CMakeLists.txt")
endforeach()
