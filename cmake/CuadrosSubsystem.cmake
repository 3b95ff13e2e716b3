# cuadros_subsystem(<folder> [DIALOGS <stem>...] [INTERNAL <owner>/<stem>...] [SHEETS <stem>...]
#                   [PAGES <sheet>/<stem>...] [RECORDS <stem>...] [SOURCES <file>...])
#
# Says what a folder of the library has, in its CMakeLists.txt. Sources, public headers, the
# umbrella header, the templates of the language file, the installation and the check of the stems
# follow.
#
#   DIALOGS   exported dialogs, each with a template of its own
#   INTERNAL  dialogs that only the dialog <owner> opens: not exported, not installed
#   SHEETS    exported property sheets, which have no template
#   PAGES     exported property pages of a sheet
#   RECORDS   exported classes that a dialog edits
#   SOURCES   what these share, of no use to a host
set(CUADROS_KINDS DIALOGS INTERNAL SHEETS PAGES RECORDS)

function(cuadros_subsystem folder)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "${CUADROS_KINDS};SOURCES")
  if(arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "cuadros_subsystem(${folder}): what is ${arg_UNPARSED_ARGUMENTS}?")
  endif()

  target_sources(cuadros PRIVATE ${arg_SOURCES})
  foreach(kind ${CUADROS_KINDS} SOURCES)
    list(TRANSFORM arg_${kind} PREPEND ${folder}/)
    set_property(GLOBAL APPEND PROPERTY CUADROS_${kind} ${arg_${kind}})
  endforeach()
  foreach(source ${arg_SOURCES})
    cmake_path(GET source STEM stem)
    list(APPEND private ${stem}.h)
  endforeach()
  foreach(kind ${CUADROS_KINDS})
    foreach(piece ${arg_${kind}})
      cmake_path(GET piece FILENAME stem)
      target_sources(cuadros PRIVATE ${stem}.cpp)
      if(kind STREQUAL "INTERNAL")
        list(APPEND private ${stem}.h)
      else()
        list(APPEND public ${stem}.h)
        set_property(GLOBAL APPEND PROPERTY CUADROS_EXPORTED ${folder}/${stem}.h)
      endif()
      if(kind MATCHES "DIALOGS|INTERNAL|PAGES")
        set_property(GLOBAL APPEND PROPERTY CUADROS_TEMPLATES ${folder}/${stem}.rc)
      endif()
    endforeach()
  endforeach()
  target_sources(cuadros PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${public})
  target_sources(cuadros_private INTERFACE FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}
                                           FILES ${private})
endfunction()

# What follows from all subsystems, after the last one:
#   include/cuadros/Cuadros.h, which includes all public headers, as an installed one
#   Templates.rc, which includes all templates, whatever the language
#   Lists.cmake, which sets the lists: the check of the stems reads it
set(CUADROS_MADE ${PROJECT_BINARY_DIR}/cuadros/made)
function(cuadros_end_of_subsystems)
  set(lists "")
  foreach(kind ${CUADROS_KINDS} SOURCES)
    get_property(pieces GLOBAL PROPERTY CUADROS_${kind})
    string(APPEND lists "set(${kind} ${pieces})\n")
  endforeach()
  file(CONFIGURE OUTPUT ${CUADROS_MADE}/Lists.cmake CONTENT "${lists}" @ONLY)

  include_all(CUADROS_TEMPLATES "" templates)
  file(CONFIGURE OUTPUT ${CUADROS_MADE}/Templates.rc CONTENT "${templates}" @ONLY)

  include_all(CUADROS_EXPORTED cuadros/ headers)
  set(base ${CUADROS_MADE}/include)
  file(CONFIGURE OUTPUT ${base}/cuadros/Cuadros.h @ONLY
       CONTENT "// All that the library exports, made by the build.\n#pragma once\n\n${headers}")
  target_sources(cuadros PUBLIC FILE_SET umbrella TYPE HEADERS BASE_DIRS ${base}
                                FILES ${base}/cuadros/Cuadros.h)
endfunction()

# A line of C for each file that a property lists, in the order of their names.
function(include_all property folder result)
  get_property(files GLOBAL PROPERTY ${property})
  list(SORT files)
  list(TRANSFORM files REPLACE "(.+)" "#include \"${folder}\\1\"\n")
  list(JOIN files "" lines)
  set(${result} "${lines}" PARENT_SCOPE)
endfunction()
