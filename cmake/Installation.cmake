# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Installation of the library, its translations and headers, a CMake package and a pkg-config file.
# Every path has the version of Qt in it, so that the libraries for both can be installed together.
# Included by toolbar/CMakeLists.txt, which sets `public_headers`, `kind`,
# `library_name` and `header_dir`.

install(TARGETS mrtoolbar EXPORT MRToolBarTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT Development
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT Runtime
        NAMELINK_COMPONENT Development)
if(MRTOOLBAR_TRANSLATIONS)
    install(FILES $<TARGET_PROPERTY:mrtoolbar_objects,COMPILED_TRANSLATIONS>
        DESTINATION ${CMAKE_INSTALL_DATADIR}/${library_name}/translations
        COMPONENT Runtime)
endif()
foreach(header IN LISTS public_headers)
    cmake_path(GET header PARENT_PATH folder)
    install(FILES ${header} DESTINATION ${header_dir}/toolbar/${folder} COMPONENT Development)
endforeach()

# A program that is linked with the static library needs its libraries, too.
set(pc_requires "")
foreach(module IN ITEMS Core Gui Widgets Xml)
    string(APPEND pc_requires "Qt${MRTOOLBAR_QT_MAJOR}${module} ")
endforeach()
set(pc_static_flags "")
set(find_static_dependencies "")
if(kind STREQUAL STATIC)
    set(pc_static_flags " -DMRTOOLBAR_STATIC")
    foreach(needed IN ITEMS XCB:xcb ICU:icu-i18n)
        string(REGEX REPLACE ":.*" "" name ${needed})
        string(REGEX REPLACE ".*:" "" module ${needed})
        if(MRTOOLBAR_${name}_FOUND)
            string(APPEND pc_requires "${module} ")
            string(APPEND find_static_dependencies
                "find_dependency(PkgConfig)\n"
                "pkg_check_modules(MRTOOLBAR_${name} REQUIRED IMPORTED_TARGET GLOBAL ${module})\n")
        endif()
    endforeach()
endif()
string(STRIP "${pc_requires}" pc_requires)

# CMake looks for a package in every folder whose name begins with that of the package.
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/MRToolBar-qt${MRTOOLBAR_QT_MAJOR})
set(package_build_dir ${PROJECT_BINARY_DIR}/package)
install(EXPORT MRToolBarTargets
    NAMESPACE MRToolBar::
    DESTINATION ${package_dir}
    COMPONENT Development)
include(CMakePackageConfigHelpers)
configure_package_config_file(
    ${PROJECT_SOURCE_DIR}/cmake/MRToolBarConfig.cmake.in
    ${package_build_dir}/MRToolBarConfig.cmake
    INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(
    ${package_build_dir}/MRToolBarBasicVersion.cmake COMPATIBILITY SameMajorVersion)
configure_file(
    ${PROJECT_SOURCE_DIR}/cmake/MRToolBarConfigVersion.cmake.in
    ${package_build_dir}/MRToolBarConfigVersion.cmake
    @ONLY)
install(FILES
    ${package_build_dir}/MRToolBarConfig.cmake
    ${package_build_dir}/MRToolBarBasicVersion.cmake
    ${package_build_dir}/MRToolBarConfigVersion.cmake
    ${PROJECT_SOURCE_DIR}/cmake/QtMajor.cmake
    DESTINATION ${package_dir}
    COMPONENT Development)
# The function that checks the descriptions of a host while the host is built.
install(FILES ${PROJECT_SOURCE_DIR}/cmake/MRToolBarDescription.cmake
    DESTINATION ${package_dir}
    COMPONENT Development
    OPTIONAL)

# The installed tree may be moved, and is when it is packed.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
    BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig OUTPUT_VARIABLE prefix_from_pc)
configure_file(
    ${PROJECT_SOURCE_DIR}/cmake/mrtoolbar.pc.in ${PROJECT_BINARY_DIR}/${library_name}.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/${library_name}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT Development)
