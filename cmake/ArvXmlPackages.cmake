# Debian packages, one to run programs and one to develop them; see scripts/package. They require a build for the prefix
# /usr, on which the library folder depends.

if(ARVXML_QT STREQUAL "5")
    set(arvxml_runtime_package libarvxml${arvxml_abi})
else()
    set(arvxml_runtime_package lib${arvxml_name}-${arvxml_abi})
endif()
set(arvxml_development_package lib${arvxml_name}-dev)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${arvxml_name})
set(CPACK_PACKAGE_VENDOR ArvXml)
set(CPACK_PACKAGE_CONTACT "ArvXml maintainers <maintainers@arvxml.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(arvxml_package_text
"Every element of the protocol is a class that reads itself from a stream,
writes itself to one, and checks whether its content is valid.
")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${arvxml_runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION
"${PROJECT_DESCRIPTION} (Qt ${ARVXML_QT})
${arvxml_package_text}
This package has the shared library.")
# It depends on the libraries it is linked with, and other packages get their dependency on it in the same way.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

# The library cache is updated once for all packages that are installed together.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/cmake/triggers)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${arvxml_development_package})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
"${PROJECT_DESCRIPTION} (Qt ${ARVXML_QT}, development)
${arvxml_package_text}
This package has what programs are built with: headers, and files for CMake
and pkg-config.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${arvxml_runtime_package} (= ${PROJECT_VERSION}), ${arvxml_qt_development_package} (>= ${arvxml_qt_version})")

include(CPack)
