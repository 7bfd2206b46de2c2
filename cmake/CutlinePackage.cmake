# Installs what bundles are built against: the ports' headers, the library that they are in, and the
# package by which CMake finds both. All of it is the component "ports", which can be installed alone.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(CUTLINE_INCLUDE_DIR ${CMAKE_INSTALL_INCLUDEDIR}/cutline)
set(CUTLINE_PACKAGE_DIR lib/cmake/Cutline)

function(cutline_install_ports TARGET)
  target_compile_features(${TARGET} INTERFACE cxx_std_20)
  set_target_properties(${TARGET} PROPERTIES EXPORT_NAME Ports)
  install(TARGETS ${TARGET} EXPORT CutlinePorts
    LIBRARY DESTINATION ${CUTLINE_LIB_DIR} COMPONENT ports
    INCLUDES DESTINATION ${CUTLINE_INCLUDE_DIR})
  install(DIRECTORY ${CMAKE_SOURCE_DIR}/platform/ports
    DESTINATION ${CUTLINE_INCLUDE_DIR}/platform COMPONENT ports
    FILES_MATCHING PATTERN "*.h")
  install(EXPORT CutlinePorts NAMESPACE Cutline::
    DESTINATION ${CUTLINE_PACKAGE_DIR} COMPONENT ports)
  write_basic_package_version_file(${CMAKE_BINARY_DIR}/CutlineConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
  install(FILES ${CMAKE_SOURCE_DIR}/cmake/CutlineConfig.cmake
                ${CMAKE_BINARY_DIR}/CutlineConfigVersion.cmake
    DESTINATION ${CUTLINE_PACKAGE_DIR} COMPONENT ports)
endfunction()
