# Installation: the library, its headers, resources, a CMake package giving
# netloom::netloom, a pkg-config file, and a Debian package through CPack.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS netloom EXPORT netloomTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY include/netloom DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY resources/ DESTINATION ${CMAKE_INSTALL_DATADIR}/netloom/resources)
install(EXPORT netloomTargets NAMESPACE netloom:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/netloom)

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/netloomConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/netloomConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/netloom)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/netloomConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/netloomConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/netloomConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/netloom)

configure_file(${CMAKE_CURRENT_LIST_DIR}/netloom.pc.in ${CMAKE_CURRENT_BINARY_DIR}/netloom.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/netloom.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME netloom)
set(CPACK_PACKAGE_VENDOR "Netloom")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Network data layer: route tables, device tables, access records")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Netloom developers")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libboost-dev (>= 1.74), python3-dev (>= 3.11)")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# The library finds its resources under the prefix it was built for; the
# package installs there (configure with -DCMAKE_INSTALL_PREFIX=/usr for a system package).
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
include(CPack)

# API reference, when doxygen is installed: cmake --build build --target apidoc
find_program(DOXYGEN_EXECUTABLE doxygen)
if(DOXYGEN_EXECUTABLE)
  add_custom_target(apidoc COMMAND ${DOXYGEN_EXECUTABLE} docs/Doxyfile
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR} COMMENT "API reference in build/apidoc")
endif()
