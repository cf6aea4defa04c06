# Installs the library, its headers, the CMake package and the pkg-config file.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(arvxml_include_dir ${CMAKE_INSTALL_INCLUDEDIR}${arvxml_include_suffix})
target_include_directories(arvxml PUBLIC $<INSTALL_INTERFACE:${arvxml_include_dir}>)
set_target_properties(arvxml PROPERTIES EXPORT_NAME ArvXml)
install(TARGETS arvxml EXPORT ${arvxml_package}Targets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/arvxml ${PROJECT_BINARY_DIR}/include/arvxml
    DESTINATION ${arvxml_include_dir} COMPONENT development)

# Users of a static library also link its dependencies.
get_target_property(arvxml_type arvxml TYPE)
set(arvxml_pc_requires "${arvxml_qt}Core >= ${arvxml_qt_version}")
set(arvxml_pc_requires_private "${arvxml_qt}Network >= ${arvxml_qt_version}")
if(arvxml_type STREQUAL STATIC_LIBRARY)
    set(arvxml_qt_components "Core Network")
    string(APPEND arvxml_pc_requires ", ${arvxml_pc_requires_private}")
    set(arvxml_pc_definitions " -DARVXML_STATIC")
else()
    set(arvxml_qt_components Core)
    set(arvxml_pc_definitions "")
endif()

set(arvxml_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${arvxml_package})
install(EXPORT ${arvxml_package}Targets NAMESPACE ${arvxml_package}:: DESTINATION ${arvxml_package_dir}
    COMPONENT development)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ArvXmlConfig.cmake.in
    ${PROJECT_BINARY_DIR}/${arvxml_package}Config.cmake INSTALL_DESTINATION ${arvxml_package_dir})
# Versions are semantic: 1.2 satisfies requests for 1, 1.0 and 1.2, but not for 1.3, 2 or 0.9.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/${arvxml_package}ConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/${arvxml_package}Config.cmake
    ${PROJECT_BINARY_DIR}/${arvxml_package}ConfigVersion.cmake
    DESTINATION ${arvxml_package_dir} COMPONENT development)

# The prefix is relative to the .pc file, so that the installed tree can be moved.
file(RELATIVE_PATH arvxml_pc_to_prefix /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(${PROJECT_SOURCE_DIR}/cmake/arvxml.pc.in ${PROJECT_BINARY_DIR}/${arvxml_name}.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/${arvxml_name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development)
