# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Debian packages by `cpack -G DEB`. The library and what a developer needs have the version of Qt in
# their names and in all their paths, so both can be installed. The checker and the reader are one
# program each, whichever version of Qt they were built with: their packages have the same name in
# both builds, so that one takes the place of the other.
# To be included before the directories that install something.
set(CPACK_PACKAGE_NAME mrtoolbar)
set(CPACK_PACKAGE_VENDOR "The MRToolBar authors")
set(MRTOOLBAR_PACKAGE_CONTACT "${CPACK_PACKAGE_VENDOR} <mrtoolbar@mrtoolbar.invalid>" CACHE STRING
    "Maintainer of the packages")
set(CPACK_PACKAGE_CONTACT ${MRTOOLBAR_PACKAGE_CONTACT})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
# Each package has its own summary, which is the first line of its description.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL Runtime Development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE mrtoolbar)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
    GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(major ${MRTOOLBAR_QT_MAJOR})
set(runtime libmrtoolbar-qt${major}-${PROJECT_VERSION_MAJOR})
set(needs_runtime "${runtime} (>= ${PROJECT_VERSION})")
set(toolkit_packages "qt6-base-dev")
set(svg_plugin libqt6svg6)
if(major EQUAL 5)
    set(toolkit_packages "qtbase5-dev")
    set(svg_plugin libqt5svg5)
endif()
set(about "MRToolBar is the command surface of a desktop reader for OFD documents: menus,
a quick access bar, tabs with a row of controls each, and a search bar. Every
control is described in XML and addressed by its name.\n\n")

# The icons are drawn by a plug-in, which no symbol of the library leads to.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS ${svg_plugin})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS fonts-noto-cjk)
# The programs of the other packages are linked with the library that is not installed yet.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "toolbar of a reader for OFD documents, for Qt ${major}
${about}This package has the shared library with its descriptions, style sheets and
icons.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libmrtoolbar-qt${major}-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${runtime} (= ${PROJECT_VERSION}), ${toolkit_packages}")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS pkg-config)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
    "toolbar of a reader for OFD documents, for Qt ${major} (development)
${about}This package has the headers, the files by which CMake and pkg-config find the
library, the guides and the examples.")

if(MRTOOLBAR_BUILD_TOOLS)
    list(APPEND CPACK_COMPONENTS_ALL Checker)
    string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
        ", mrtoolbar-check (>= ${PROJECT_VERSION})")
    set(CPACK_DEBIAN_CHECKER_PACKAGE_NAME mrtoolbar-check)
    set(CPACK_DEBIAN_CHECKER_PACKAGE_SECTION devel)
    set(CPACK_DEBIAN_CHECKER_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_CHECKER_PACKAGE_DEPENDS ${needs_runtime})
    set(CPACK_DEBIAN_CHECKER_DESCRIPTION "checker of toolbar descriptions for MRToolBar
${about}This package has the program that lists the mistakes in such descriptions, and
their XML schema.")
    install(FILES ${PROJECT_SOURCE_DIR}/docs/uiconfig.xsd
        DESTINATION ${CMAKE_INSTALL_DATADIR}/mrtoolbar
        COMPONENT Checker)
endif()

if(MRTOOLBAR_BUILD_EXAMPLES)
    list(APPEND CPACK_COMPONENTS_ALL Reader)
    set(CPACK_DEBIAN_READER_PACKAGE_NAME ofd-reader-mrtoolbar)
    set(CPACK_DEBIAN_READER_PACKAGE_SECTION text)
    set(CPACK_DEBIAN_READER_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_READER_PACKAGE_DEPENDS ${needs_runtime})
    # The plug-ins decode TIFF and WebP.
    set(CPACK_DEBIAN_READER_PACKAGE_RECOMMENDS
        "fonts-noto-cjk, qt${MRTOOLBAR_QT_MAJOR}-image-formats-plugins")
    set(CPACK_DEBIAN_READER_DESCRIPTION "small reader for OFD documents
Opens documents in the Open Fixed-layout Document format; shows, searches,
marks and prints their pages, and exports them as PDF or text.\n
It is the example of the library MRToolBar, which makes its toolbar.")
    set(reader ${PROJECT_SOURCE_DIR}/packaging/reader)
    foreach(file_and_folder IN ITEMS
            mrtoolbar-reader.desktop:applications
            mrtoolbar-reader.metainfo.xml:metainfo
            mrtoolbar-reader.svg:icons/hicolor/scalable/apps)
        string(REPLACE ":" ";" pair ${file_and_folder})
        list(GET pair 0 file)
        list(GET pair 1 folder)
        install(FILES ${reader}/${file}
            DESTINATION ${CMAKE_INSTALL_DATADIR}/${folder}
            COMPONENT Reader)
    endforeach()
    install(FILES ${reader}/application-ofd.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
        RENAME mrtoolbar-reader.xml
        COMPONENT Reader)
endif()

# The guides and the small examples, which are a project of their own there.
set(documents ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME})
install(FILES
    docs/host-guide.md docs/description-format.md docs/skins.md docs/uiconfig.xsd
    DESTINATION ${documents} COMPONENT Development)
install(DIRECTORY docs/pictures DESTINATION ${documents} COMPONENT Development)
install(FILES packaging/examples/CMakeLists.txt
    DESTINATION ${documents}/examples COMPONENT Development)
install(DIRECTORY examples/ DESTINATION ${documents}/examples COMPONENT Development
    PATTERN reader EXCLUDE
    REGEX "examples/CMakeLists.txt$" EXCLUDE)

# What Debian expects in every package.
string(TIMESTAMP CHANGELOG_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(packaging/debian/changelog.in ${PROJECT_BINARY_DIR}/package/changelog @ONLY)
configure_file(packaging/debian/FinishPackages.cmake.in
    ${PROJECT_BINARY_DIR}/package/FinishPackages.cmake @ONLY)
set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_BINARY_DIR}/package/FinishPackages.cmake)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} name)
    set(folder ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${name}_PACKAGE_NAME})
    install(FILES packaging/debian/copyright DESTINATION ${folder} COMPONENT ${component})
    install_compressed(${PROJECT_BINARY_DIR}/package/changelog ${folder}/changelog ${component})
endforeach()

include(CPack)
