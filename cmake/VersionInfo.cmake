# cuadros_version_info(<target> <description>)
#
# Gives a DLL or program of the project its version information. Call it after OUTPUT_NAME
# is set.

function(cuadros_version_info target description)
  get_target_property(CUADROS_VERSION_NAME ${target} OUTPUT_NAME)
  if(NOT CUADROS_VERSION_NAME)
    set(CUADROS_VERSION_NAME ${target})
  endif()
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "EXECUTABLE")
    set(CUADROS_VERSION_TYPE VFT_APP)
    set(CUADROS_VERSION_FILE ${CUADROS_VERSION_NAME}.exe)
  else()
    set(CUADROS_VERSION_TYPE VFT_DLL)
    set(CUADROS_VERSION_FILE ${CUADROS_VERSION_NAME}.dll)
  endif()
  set(CUADROS_VERSION_DESCRIPTION ${description})
  set(CUADROS_VERSION_COMMAS
      ${PROJECT_VERSION_MAJOR},${PROJECT_VERSION_MINOR},${PROJECT_VERSION_PATCH},0)
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.version.rc)
  configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/VersionInfo.rc.in ${script} @ONLY)
  target_sources(${target} PRIVATE ${script})
endfunction()
