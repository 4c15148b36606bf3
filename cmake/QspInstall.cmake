# SPDX-License-Identifier: BSD-3-Clause
# Installation: headers, both libraries with their soname links, a
# pkg-config file (qsp.pc) and a CMake package, so that a user writes
#     find_package(qsp REQUIRED)
#     target_link_libraries(app PRIVATE qsp::qsp)
# or
#     cc app.c $(pkg-config --cflags --libs qsp)
include(CMakePackageConfigHelpers)

install(TARGETS qspcore qspsy8 EXPORT qspTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} NAMELINK_COMPONENT Development
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES include/qspdefs.h include/qspcore.h include/qsps.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES LICENSE CHANGELOG.md README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(QSP_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/qsp)
install(EXPORT qspTargets NAMESPACE qsp:: FILE qspTargets.cmake DESTINATION ${QSP_CMAKE_DIR})
configure_package_config_file(cmake/qspConfig.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/qspConfig.cmake
  INSTALL_DESTINATION ${QSP_CMAKE_DIR})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/qspConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/qspConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/qspConfigVersion.cmake
  DESTINATION ${QSP_CMAKE_DIR})

configure_file(cmake/qsp.pc.in ${CMAKE_CURRENT_BINARY_DIR}/qsp.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/qsp.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
