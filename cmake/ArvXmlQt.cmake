# The Qt version, and the names that depend on it: libraries for both can be installed side by side.

if(ARVXML_QT STREQUAL "5")
    set(arvxml_qt_version 5.15)
    set(arvxml_package ArvXml)                   # for find_package, and the namespace of its target
    set(arvxml_name arvxml)                      # of the library and for pkg-config
    set(arvxml_include_suffix "")                # after the include folder
    set(arvxml_qt_development_package qtbase5-dev)
elseif(ARVXML_QT STREQUAL "6")
    set(arvxml_qt_version 6.4)
    set(arvxml_package ArvXmlQt6)
    set(arvxml_name arvxml-qt6)
    set(arvxml_include_suffix /arvxml-qt6)
    set(arvxml_qt_development_package qt6-base-dev)
else()
    message(FATAL_ERROR "ARVXML_QT is \"${ARVXML_QT}\", but must be 5 or 6")
endif()
set(arvxml_qt Qt${ARVXML_QT}) # the package of Qt, and the namespace of its targets
