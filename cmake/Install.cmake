# What a host's developer gets by `cmake --install`: headers, import libraries, DLLs, symbols,
# documents, and the CMake package `Cuadros`.
include(CMakePackageConfigHelpers)

set(package lib/cmake/Cuadros)
set(dlls bin)

install(
  TARGETS cuadros cotana afx_app_module
  EXPORT CuadrosTargets
  RUNTIME DESTINATION bin
  ARCHIVE DESTINATION lib
  FILE_SET HEADERS DESTINATION include
  FILE_SET umbrella DESTINATION include)
install(
  TARGETS afxrt
  EXPORT CuadrosTargets
  RUNTIME DESTINATION bin
  ARCHIVE DESTINATION lib
  FILE_SET HEADERS DESTINATION include/framework)
set_target_properties(cuadros PROPERTIES EXPORT_NAME Cuadros)

install(
  FILES ${CUADROS_BINARY_DIR}/CuadrosENU.dll ${CUADROS_BINARY_DIR}/CuadrosLOC.dll
        ${CUADROS_COMPILER_RUNTIME}
  DESTINATION bin)

install(EXPORT CuadrosTargets NAMESPACE Cuadros:: DESTINATION ${package})
configure_package_config_file(cmake/CuadrosConfig.cmake.in CuadrosConfig.cmake
                              INSTALL_DESTINATION ${package} PATH_VARS dlls)
write_basic_package_version_file(CuadrosConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/CuadrosConfig.cmake
              ${PROJECT_BINARY_DIR}/CuadrosConfigVersion.cmake DESTINATION ${package})

install(DIRECTORY docs/ DESTINATION share/doc/cuadros)
install(FILES README.md CHANGELOG.md LICENSE DESTINATION share/doc/cuadros)

# The symbols, out of the DLLs into files beside them, where debuggers look for them.
foreach(target cuadros cotana afxrt)
  install(
    CODE "
set(dll \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin/$<TARGET_FILE_NAME:${target}>\")
execute_process(COMMAND ${CMAKE_OBJCOPY} --only-keep-debug \${dll} \${dll}.debug
                COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_OBJCOPY} --strip-debug --add-gnu-debuglink=\${dll}.debug \${dll}
                COMMAND_ERROR_IS_FATAL ANY)")
endforeach()
