# Fails when docs/reserved-numbers.md is not what the headers of numbers say:
#   cmake -P cmake/CheckNumbers.cmake                compares
#   cmake -D WRITE=ON -P cmake/CheckNumbers.cmake    writes the page
cmake_minimum_required(VERSION 3.25)
cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH root)
set(page ${root}/docs/reserved-numbers.md)
file(GLOB headers ${root}/cuadros/resources/*Ids.h)

foreach(header ${headers})
  file(STRINGS ${header} lines)
  foreach(line ${lines})
    if(line MATCHES "^// C([A-Za-z0-9_]+)$") # a block of a dialog begins with its class
      set(stem ${CMAKE_MATCH_1})
    elseif(line MATCHES "^#define (ID[DIS])_([A-Z0-9_]+) +([0-9]+)")
      set(number ${CMAKE_MATCH_3})
      list(APPEND numbers ${number})
      if(CMAKE_MATCH_1 STREQUAL IDD)
        set(IDD_${number} C${stem})
        if(EXISTS ${root}/docs/dialogs/${stem}.md)
          set(IDD_${number} "[C${stem}](dialogs/${stem}.md)")
          math(EXPR context "0x20000 + ${number}")
          file(STRINGS ${root}/docs/dialogs/${stem}.md help REGEX "^\\| Help \\|.* ${context}( |,|$)")
          if(help) # its page says that it has help
            set(help_${number} ${context})
          endif()
        endif()
      else()
        set(${CMAKE_MATCH_1}_${number} "`${CMAKE_MATCH_1}_${CMAKE_MATCH_2}`")
      endif()
    endif()
  endforeach()
endforeach()

set(expected
    "# Reserved numbers

The numbers by which the library looks for its dialogs, icons and texts along the resource chain,
and the help contexts for which its dialogs ask, where they have help. A host, and each library that
it loads, gives none of them to a dialog, icon, text or help topic of its own; what happens
otherwise is in [known behaviour](known-behaviour.md#resources-of-the-host). The texts themselves
are in [messages](messages.md). The numbers of controls are each dialog's own: a host may use them.

| Number | Dialog | Help context | Icon | Text |
|---|---|---|---|---|
")
list(REMOVE_DUPLICATES numbers)
list(SORT numbers COMPARE NATURAL)
foreach(number ${numbers})
  string(APPEND expected "| ${number} |")
  foreach(use IDD help IDI IDS)
    if(DEFINED ${use}_${number})
      string(APPEND expected " ${${use}_${number}}")
    endif()
    string(APPEND expected " |")
  endforeach()
  string(APPEND expected "\n")
endforeach()

if(WRITE)
  file(WRITE ${page} "${expected}")
endif()
file(READ ${page} found)
if(NOT found STREQUAL expected)
  foreach(number ${numbers})
    string(REGEX MATCH "\n(\\| ${number} \\|[^\n]*\n)" line "${expected}")
    string(FIND "${found}" "${line}" at)
    if(at EQUAL -1)
      string(STRIP "${line}" line)
      message(SEND_ERROR "docs/reserved-numbers.md lacks: ${line}")
    endif()
  endforeach()
  message(SEND_ERROR "docs/reserved-numbers.md is another than the headers give. Write it by: "
                     "cmake -D WRITE=ON -P cmake/CheckNumbers.cmake")
endif()
