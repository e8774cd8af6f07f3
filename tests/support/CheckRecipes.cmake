# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# The recipes for other systems in SOURCE/packaging set options that BUILD has, name its components and
# its VERSION; what the shell reads is valid.
include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)
set(packaging ${SOURCE}/packaging)
file(READ ${packaging}/arch/PKGBUILD pkgbuild)
file(READ ${packaging}/vcpkg/mrtoolbar/portfile.cmake port)
file(READ ${packaging}/vcpkg/mrtoolbar/vcpkg.json manifest)

string(JSON version GET "${manifest}" version)
if(NOT version STREQUAL VERSION OR NOT pkgbuild MATCHES "pkgver=${VERSION}\n")
    message(SEND_ERROR "A recipe is not for version ${VERSION}")
endif()

file(STRINGS ${BUILD}/CMakeCache.txt cache REGEX "^[A-Z_]+:")
string(REGEX MATCHALL "-D(MRTOOLBAR|BUILD)[A-Z_]*=" options "${pkgbuild}${port}")
foreach(option IN LISTS options)
    string(REGEX REPLACE "-D(.*)=" "\\1" option ${option})
    if(NOT cache MATCHES "(^|;)${option}:")
        message(SEND_ERROR "A recipe sets ${option}, which the build does not have")
    endif()
endforeach()

file(GLOB scripts ${packaging}/completion/* ${packaging}/arch/PKGBUILD)
foreach(script IN LISTS scripts)
    run(bash -n ${script})
endforeach()
