# Fails when a document links to a file that is not there: cmake -P cmake/CheckLinks.cmake
cmake_minimum_required(VERSION 3.25)
cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH root)
file(GLOB documents ${root}/*.md ${root}/framework/*.md ${root}/bench/*.md)
file(GLOB_RECURSE more ${root}/docs/*.md)

foreach(document ${documents} ${more})
  file(READ ${document} text)
  cmake_path(GET document PARENT_PATH folder)
  string(REPLACE "](" "<(" text "${text}") # a list of CMake's cannot hold a lone bracket
  string(REGEX MATCHALL "<\\([^)#]+" links "${text}")
  foreach(link ${links})
    string(SUBSTRING ${link} 2 -1 link)
    if(NOT link MATCHES "^[a-z]+:" AND NOT EXISTS ${folder}/${link})
      cmake_path(RELATIVE_PATH document BASE_DIRECTORY ${root})
      message(SEND_ERROR "${document} links to ${link}, which is not there")
    endif()
  endforeach()
endforeach()
