# Installs the built project, moves the result elsewhere, and builds and runs a consumer of it:
#   cmake -D BUILD=... -D LISTS=... -D WORK=... -D TOOLCHAIN=... -D EMULATOR=... -P run.cmake
function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
file(RENAME ${WORK}/installed "${WORK}/moved elsewhere")

foreach(name CuadrosENU CuadrosLOC CuadrosAfx Cotana Cuadros libstdc++-6)
  if(NOT EXISTS "${WORK}/moved elsewhere/bin/${name}.dll")
    message(FATAL_ERROR "${name}.dll is not installed")
  endif()
endforeach()

# Of the library's headers a host gets those of what is exported, and no other.
include(${LISTS})
set(expected Cuadros.h frame/Exporta.h)
foreach(kind DIALOGS SHEETS PAGES RECORDS)
  foreach(piece ${${kind}})
    string(REGEX REPLACE "/.*/" "/" header ${piece}.h)
    list(APPEND expected ${header})
  endforeach()
endforeach()
file(GLOB_RECURSE headers RELATIVE "${WORK}/moved elsewhere/include/cuadros"
     "${WORK}/moved elsewhere/include/cuadros/*")
list(FILTER headers EXCLUDE REGEX "^resources/[A-Za-z]+Ids\\.h$")
list(SORT headers)
list(SORT expected)
if(NOT headers STREQUAL expected)
  message(FATAL_ERROR "Installed of the library: ${headers}\nexpected: ${expected}")
endif()

file(GLOB_RECURSE written "${WORK}/moved elsewhere/*.cmake")
foreach(file ${written})
  file(READ ${file} text)
  string(FIND "${text}" "${BUILD}" place)
  if(NOT place EQUAL -1)
    message(FATAL_ERROR "${file} names the folder in which it was built")
  endif()
endforeach()

run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${WORK}/consumer -G Ninja --toolchain
    ${TOOLCHAIN} "-DCuadros_DIR=${WORK}/moved elsewhere/lib/cmake/Cuadros")
run(${CMAKE_COMMAND} --build ${WORK}/consumer)
run(${EMULATOR} ${WORK}/consumer/consumer.exe)
