# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
# cpack -G DEB builds libcommongui1 (the shared libraries) and libcommongui-dev
# (headers, CMake package, pkg-config file). The demo tool is not packaged.
set(CPACK_PACKAGE_NAME commongui)
set(CPACK_PACKAGE_VENDOR "Korvil")
set(CPACK_PACKAGE_CONTACT "CommonGUI developers <commongui@korvil.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "GUI foundation library for CANopen and CAN engineering tools")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libcommongui1)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "libqt5sql5-sqlite")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "CommonGUI shared libraries (libCommonGUI.so.1, libCommonUtilities.so.1)")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libcommongui-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "libcommongui1 (= ${PROJECT_VERSION}), qtbase5-dev (>= 5.15), qttools5-dev (>= 5.15)")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "CommonGUI headers, CMake package and pkg-config file")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
include(CPack)
