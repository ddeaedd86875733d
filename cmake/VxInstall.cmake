include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS VxXmlLib16 EXPORT VxXmlLib16Targets
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VxXmlLib16)
install(FILES ${VX_PUBLIC_HEADERS} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/VxXmlLib16)
install(EXPORT VxXmlLib16Targets
  NAMESPACE VxXmlLib16::
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/VxXmlLib16)
configure_package_config_file(cmake/VxXmlLib16Config.cmake.in
  ${PROJECT_BINARY_DIR}/VxXmlLib16Config.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/VxXmlLib16)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VxXmlLib16ConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/VxXmlLib16Config.cmake
  ${PROJECT_BINARY_DIR}/VxXmlLib16ConfigVersion.cmake
  cmake/VxDependencies.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/VxXmlLib16)
