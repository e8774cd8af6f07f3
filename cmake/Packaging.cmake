# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Debian packages by `cpack -G DEB`: the library for programs that run, and what a developer needs.
# To be included before the directories that install something.

# Whatever does not say otherwise is for developers; the shared library does.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME Development)

set(CPACK_PACKAGE_NAME mrtoolbar)
set(CPACK_PACKAGE_VENDOR "The MRToolBar authors")
set(CPACK_PACKAGE_CONTACT "${CPACK_PACKAGE_VENDOR} <mrtoolbar@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL Runtime Development)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)

# The library has the same name with both versions of Qt, so only one of them can be installed.
set(other_major 5)
set(toolkit_packages qt6-base-dev)
set(svg_plugin libqt6svg6)
if(MRTOOLBAR_QT_MAJOR EQUAL 5)
    set(other_major 6)
    set(toolkit_packages qtbase5-dev)
    set(svg_plugin libqt5svg5)
endif()
set(runtime libmrtoolbar${PROJECT_VERSION_MAJOR}-qt)
set(development libmrtoolbar-dev-qt)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime}${MRTOOLBAR_QT_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONFLICTS ${runtime}${other_major})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${development}${MRTOOLBAR_QT_MAJOR})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_CONFLICTS ${development}${other_major})

# The icons are drawn by a plug-in, which no symbol of the library leads to.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS ${svg_plugin})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS fonts-noto-cjk)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS Runtime)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS ${toolkit_packages})

set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "The shared library with its descriptions, style sheets and icons.")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "Headers, and the files by which CMake and pkg-config find the library.")

# Where Debian looks for the licence of a package.
foreach(component IN ITEMS Runtime Development)
    string(TOUPPER ${component} name)
    install(FILES ${PROJECT_SOURCE_DIR}/LICENSE
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${name}_PACKAGE_NAME}
        RENAME copyright
        COMPONENT ${component})
endforeach()

include(CPack)
