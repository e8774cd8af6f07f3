# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Makes the Debian packages of BUILD, checks them with the tools of Debian that are there, installs
# them in a root directory of their own, together with those that OTHER has for the other version of
# Qt, builds hosts with them, and removes them. SOURCE is the source tree, ROOT the folder to work in.
include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)
set_configure_host(${GENERATOR})
set(root ${ROOT}/root)
set(usr ${root}/usr)
math(EXPR other "11 - ${QT}")

# dpkg_in_root(WORD...): does not touch the packages of the machine and needs no root rights.
function(dpkg_in_root)
    run(${DPKG} --root=${root} --force-not-root --force-script-chrootless --force-depends
        --log=/dev/null ${ARGN})
endfunction()

# check_with(<tool> <word>...): if the machine has the tool.
function(check_with tool)
    find_program(${tool}_program ${tool})
    if(${tool}_program)
        run(${${tool}_program} ${ARGN})
    else()
        message("Without ${tool}")
    endif()
endfunction()

file(REMOVE_RECURSE ${ROOT} ${BUILD}/packages)
foreach(folder IN ITEMS info updates triggers)
    file(MAKE_DIRECTORY ${root}/var/lib/dpkg/${folder})
endforeach()
file(TOUCH ${root}/var/lib/dpkg/status)

run(${CMAKE_COMMAND} -E chdir ${BUILD} ${CPACK} -G DEB)
set(library libmrtoolbar-qt${QT}-1)
set(names ${library} libmrtoolbar-qt${QT}-dev mrtoolbar-check ofd-reader-mrtoolbar)
set(packages "")
foreach(name IN LISTS names)
    file(GLOB package ${BUILD}/packages/${name}_*.deb)
    if(NOT package)
        message(FATAL_ERROR "There is no package ${name}")
    endif()
    list(APPEND packages ${package})
endforeach()
check_with(lintian --allow-root --fail-on error,warning ${packages})
check_with(desktop-file-validate ${SOURCE}/packaging/reader/mrtoolbar-reader.desktop)
check_with(appstreamcli validate --no-net ${SOURCE}/packaging/reader/mrtoolbar-reader.metainfo.xml)

# The library alone has all that a program needs, and nothing for developers.
list(GET packages 0 runtime)
dpkg_in_root(--install ${runtime})
if(EXISTS ${usr}/include OR EXISTS ${usr}/bin)
    message(SEND_ERROR "The library's package has headers or programs")
endif()
file(STRINGS ${root}/var/lib/dpkg/info/${library}.shlibs shlibs)
if(NOT shlibs STREQUAL "libmrtoolbar-qt${QT} 1 ${library} (>= ${VERSION})")
    message(SEND_ERROR "Programs would not get a dependency: ${shlibs}")
endif()
file(STRINGS ${root}/var/lib/dpkg/info/${library}.symbols symbols REGEX "MRToolBarCommands6update")
if(NOT symbols MATCHES "@Base ${VERSION}$")
    message(SEND_ERROR "The library's symbols are not listed: ${symbols}")
endif()

file(GLOB others ${OTHER}/packages/*.deb)
set(versions ${QT})
if(others)
    dpkg_in_root(--install ${others})
    list(APPEND versions ${other})
    list(APPEND names libmrtoolbar-qt${other}-1 libmrtoolbar-qt${other}-dev)
endif()
# The programs are now those of this build.
dpkg_in_root(--install ${packages})
foreach(file IN ITEMS
        share/mrtoolbar-qt${QT}/translations/mrtoolbar_en.qm share/mrtoolbar/uiconfig.xsd
        share/doc/libmrtoolbar-qt${QT}-dev/host-guide.md
        share/applications/mrtoolbar-reader.desktop share/man/man1/mrtoolbar-reader.1.gz
        share/bash-completion/completions/mrtoolbar-check)
    if(NOT EXISTS ${usr}/${file})
        message(SEND_ERROR "No package has ${file}")
    endif()
endforeach()

set(ENV{LD_LIBRARY_PATH} ${usr}/lib/${ARCHITECTURE}:${usr}/lib)
foreach(version IN LISTS versions)
    run(${configure_host} -B ${ROOT}/qt${version} -DCMAKE_PREFIX_PATH=${usr}
        -DMRTOOLBAR_QT_MAJOR=${version} -DEXPECTED_QT=${version})
    run(${CMAKE_COMMAND} --build ${ROOT}/qt${version} --target cmake_host)
    run_hosts(${ROOT}/qt${version})
endforeach()
run(${CMAKE_COMMAND} -G ${GENERATOR} -B ${ROOT}/examples -DCMAKE_PREFIX_PATH=${usr}
    -DMRTOOLBAR_QT_MAJOR=${QT} -S ${usr}/share/doc/libmrtoolbar-qt${QT}-dev/examples)
run(${CMAKE_COMMAND} --build ${ROOT}/examples)
foreach(program IN ITEMS mrtoolbar-reader mrtoolbar-check)
    run(${usr}/bin/${program} --version)
endforeach()
run(${usr}/bin/mrtoolbar-check ${SOURCE}/Resources/lum/mr_toolbar.release.xml)

dpkg_in_root(--purge ${names})
if(EXISTS ${usr})
    file(GLOB_RECURSE left ${usr}/*)
    message(SEND_ERROR "The packages have left something behind: ${left}")
endif()
