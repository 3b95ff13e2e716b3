# The compiler's runtime as DLLs beside the binaries: an exception has to cross from one
# module to another, which needs one shared copy of it.
foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
  execute_process(
    COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
    OUTPUT_VARIABLE path
    OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT EXISTS "${path}" OR NOT IS_ABSOLUTE "${path}")
    message(FATAL_ERROR "The compiler does not know where its ${dll} is.")
  endif()
  if(NOT EXISTS ${CUADROS_BINARY_DIR}/${dll})
    # Stripped: unstripped, the C++ library alone costs 10 ms at each process start.
    file(MAKE_DIRECTORY ${CUADROS_BINARY_DIR})
    execute_process(COMMAND ${CMAKE_STRIP} -o ${CUADROS_BINARY_DIR}/${dll} ${path}
                            COMMAND_ERROR_IS_FATAL ANY)
  endif()
  list(APPEND CUADROS_COMPILER_RUNTIME ${CUADROS_BINARY_DIR}/${dll})
endforeach()
