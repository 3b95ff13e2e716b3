# Fails when docs/messages.md and the string table of the language file differ:
# cmake -P cmake/CheckMessages.cmake
cmake_minimum_required(VERSION 3.25)
cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH root)
file(READ ${root}/docs/messages.md page)
file(STRINGS ${root}/cuadros/resources/StringIds.h symbols REGEX "^#define IDS_")
file(STRINGS ${root}/cuadros/resources/en-US/Strings.rc texts REGEX "^ +IDS_" ENCODING UTF-8)

foreach(line ${symbols})
  string(REGEX MATCH "(IDS_[A-Z_0-9]+) +([0-9]+)" line "${line}")
  set(${CMAKE_MATCH_1} ${CMAKE_MATCH_2})
endforeach()

foreach(line ${texts})
  string(REGEX MATCH "(IDS_[A-Z_0-9]+) +\"(.*)\"" line "${line}")
  set(number ${${CMAKE_MATCH_1}})
  string(REPLACE "|" "\\|" text "${CMAKE_MATCH_2}")
  string(FIND "${page}" "\n| ${number} | ${text} |" at)
  if(at EQUAL -1)
    message(SEND_ERROR "docs/messages.md lacks: | ${number} | ${text} |")
  endif()
endforeach()

list(LENGTH texts in_table)
string(REGEX MATCHALL "\n\\| [0-9]+ \\|" rows "${page}")
list(LENGTH rows in_page)
if(NOT in_table EQUAL in_page)
  message(SEND_ERROR "docs/messages.md has ${in_page} texts, the string table ${in_table}.")
endif()
