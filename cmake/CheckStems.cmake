# Fails when a dialog lacks one of its pieces, which all bear its name:
#   cmake -P cmake/CheckStems.cmake
cmake_minimum_required(VERSION 3.25)
cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH root)
file(READ ${root}/cuadros/Cuadros.h umbrella)
file(READ ${root}/sample/Conversaciones.cpp conversations)
file(GLOB headers RELATIVE ${root}/cuadros ${root}/cuadros/*/*Dlg.h)

foreach(header ${headers})
  cmake_path(GET header PARENT_PATH folder)
  cmake_path(GET header STEM stem)
  foreach(piece cuadros/${folder}/${stem}.cpp cuadros/resources/en-US/${folder}/${stem}.rc
                tests/${folder}/${stem}Test.cpp docs/dialogs/${stem}.md docs/dialogs/${stem}.png)
    if(NOT EXISTS ${root}/${piece})
      list(APPEND missing ${piece})
    endif()
  endforeach()
  if(NOT umbrella MATCHES "${header}")
    list(APPEND missing "the line of ${stem} in cuadros/Cuadros.h")
  endif()
  if(NOT conversations MATCHES "L\"${stem}\"")
    list(APPEND missing "the row of ${stem} in sample/Conversaciones.cpp")
  endif()
endforeach()

if(missing)
  list(JOIN missing "\n  " missing)
  message(FATAL_ERROR "Missing:\n  ${missing}")
endif()
