# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Makes the Debian packages, and installs and removes them in a root directory of their own.
#
#   cmake -DCPACK=... -DDPKG=... -DBUILD=... -DROOT=... -P CheckPackages.cmake

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output
        ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\n${output}")
    endif()
endfunction()

# dpkg_in_root(WORD...): does not touch the packages of the machine and needs no root rights.
function(dpkg_in_root)
    run(${DPKG} --root=${ROOT} --force-not-root --force-script-chrootless --force-depends
        --log=/dev/null ${ARGN})
endfunction()

function(expect_files)
    foreach(file IN LISTS ARGN)
        if(NOT EXISTS ${ROOT}/usr/${file})
            message(SEND_ERROR "No package has ${file}")
        endif()
    endforeach()
endfunction()

file(REMOVE_RECURSE ${ROOT} ${BUILD}/packages)
foreach(folder IN ITEMS info updates triggers)
    file(MAKE_DIRECTORY ${ROOT}/var/lib/dpkg/${folder})
endforeach()
file(TOUCH ${ROOT}/var/lib/dpkg/status)

execute_process(COMMAND ${CPACK} -G DEB WORKING_DIRECTORY ${BUILD} RESULT_VARIABLE result
    OUTPUT_VARIABLE output ERROR_VARIABLE output)
file(GLOB runtime ${BUILD}/packages/libmrtoolbar[0-9]*.deb)
file(GLOB development ${BUILD}/packages/libmrtoolbar-dev*.deb)
if(NOT result EQUAL 0 OR NOT runtime OR NOT development)
    message(FATAL_ERROR "There are no two packages\n${output}")
endif()

dpkg_in_root(--install ${runtime})
file(GLOB libraries ${ROOT}/usr/lib/libmrtoolbar.so.*)
if(NOT libraries OR EXISTS ${ROOT}/usr/include)
    message(SEND_ERROR "The package for programs has no library, or has headers")
endif()
expect_files(share/mrtoolbar/translations/mrtoolbar_en.qm)

dpkg_in_root(--install ${development})
expect_files(include/mrtoolbar/toolbar/MRToolBar.h lib/libmrtoolbar.so bin/mrtoolbar-check
    lib/cmake/MRToolBar/MRToolBarConfig.cmake lib/pkgconfig/mrtoolbar.pc)
file(GLOB licences ${ROOT}/usr/share/doc/*/copyright)
list(LENGTH licences count)
if(NOT count EQUAL 2)
    message(SEND_ERROR "Not each of the two packages has its licence: ${licences}")
endif()

file(GLOB_RECURSE lists ${ROOT}/var/lib/dpkg/info/libmrtoolbar*.list)
set(names)
foreach(list IN LISTS lists)
    get_filename_component(name ${list} NAME_WE)
    list(APPEND names ${name})
endforeach()
dpkg_in_root(--purge ${names})
if(EXISTS ${ROOT}/usr)
    file(GLOB_RECURSE left ${ROOT}/usr/*)
    message(SEND_ERROR "The packages have left something behind: ${left}")
endif()
