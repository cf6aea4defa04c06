# Installs the library, its headers, the CMake package and the pkg-config file.

include(CMakePackageConfigHelpers)

install(TARGETS arvxml EXPORT ArvXmlTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/arvxml ${PROJECT_BINARY_DIR}/include/arvxml
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)

set(arvxml_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ArvXml)
install(EXPORT ArvXmlTargets NAMESPACE ArvXml:: DESTINATION ${arvxml_package_dir} COMPONENT development)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ArvXmlConfig.cmake.in
    ${PROJECT_BINARY_DIR}/ArvXmlConfig.cmake INSTALL_DESTINATION ${arvxml_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ArvXmlConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ArvXmlConfig.cmake ${PROJECT_BINARY_DIR}/ArvXmlConfigVersion.cmake
    DESTINATION ${arvxml_package_dir} COMPONENT development)

# pkg-config finds the prefix from the place of its file, so that the tree can be moved.
file(RELATIVE_PATH arvxml_pc_to_prefix /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(${PROJECT_SOURCE_DIR}/cmake/arvxml.pc.in ${PROJECT_BINARY_DIR}/arvxml.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/arvxml.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
