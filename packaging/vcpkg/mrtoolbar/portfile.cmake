# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# An overlay port for Qt 6: it builds the sources that it is a part of.
#   vcpkg install mrtoolbar --overlay-ports=packaging/vcpkg
cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH SOURCE_PATH)
cmake_path(GET SOURCE_PATH PARENT_PATH SOURCE_PATH)
cmake_path(GET SOURCE_PATH PARENT_PATH SOURCE_PATH)

vcpkg_cmake_configure(
    SOURCE_PATH "${SOURCE_PATH}"
    OPTIONS
        -DMRTOOLBAR_QT_MAJOR=6
        -DMRTOOLBAR_BUILD_EXAMPLES=OFF
        -DMRTOOLBAR_BUILD_TOOLS=OFF
        -DBUILD_TESTING=OFF
        # Optional, and not among the dependencies of the port.
        -DCMAKE_DISABLE_FIND_PACKAGE_PkgConfig=ON)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(PACKAGE_NAME mrtoolbar-qt6 CONFIG_PATH lib/cmake/MRToolBar-qt6)
vcpkg_fixup_pkgconfig()
file(REMOVE_RECURSE
    "${CURRENT_PACKAGES_DIR}/debug/include"
    "${CURRENT_PACKAGES_DIR}/debug/share"
    "${CURRENT_PACKAGES_DIR}/share/doc")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/LICENSE")
