# Fails when a source is not as clang-format writes it: cmake -P cmake/CheckFormat.cmake
cmake_minimum_required(VERSION 3.25)
cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH root)
foreach(folder framework host cuadros sample tests tools bench)
  file(GLOB_RECURSE found ${root}/${folder}/*.h ${root}/${folder}/*.cpp)
  list(APPEND sources ${found})
endforeach()
# By its version: another one writes otherwise.
execute_process(COMMAND clang-format-14 --dry-run -Werror ${sources} COMMAND_ERROR_IS_FATAL ANY)
