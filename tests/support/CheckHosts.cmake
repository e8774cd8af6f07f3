# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Hosts are built with the installed library, and with those for both versions of Qt side by side if
# the other one is built, too. ROOT is the folder to work in, where a moved copy of INSTALLED is used,
# QT its version, and OTHER the folder where a library for the other version may have been built.
include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)
set_configure_host(${GENERATOR})
list(APPEND configure_host -DCMAKE_PREFIX_PATH=${ROOT}/prefix)
file(REMOVE_RECURSE ${ROOT})
set(ENV{LD_LIBRARY_PATH} "${ROOT}/prefix/lib:${ROOT}/prefix/lib/${ARCHITECTURE}")

file(COPY ${INSTALLED}/ DESTINATION ${ROOT}/prefix)
set(versions ${QT})
math(EXPR other "11 - ${QT}")
file(GLOB library ${OTHER}/lib/libmrtoolbar-qt${other}.so.*)
if(library AND EXISTS ${OTHER}/bin/mrtoolbar-reader AND EXISTS ${OTHER}/bin/mrtoolbar-check)
    run(${CMAKE_COMMAND} --install ${OTHER} --prefix ${ROOT}/prefix)
    list(APPEND versions ${other})
endif()

foreach(version IN LISTS versions)
    run(${configure_host} -B ${ROOT}/qt${version} -DMRTOOLBAR_QT_MAJOR=${version}
        -DEXPECTED_QT=${version})
    run(${CMAKE_COMMAND} --build ${ROOT}/qt${version})
    run_hosts(${ROOT}/qt${version})
    run(${configure_host} -B ${ROOT}/own -DCHOICE_ONLY=ON -DOWN_QT=${version} -DEXPECTED_QT=${version})
endforeach()

list(SORT versions)
list(GET versions 0 default)
run(${configure_host} -B ${ROOT}/default -DCHOICE_ONLY=ON -DEXPECTED_QT=${default})
if(versions STREQUAL "5;6")
    # A build folder may change its mind.
    run(${configure_host} -B ${ROOT}/default -DCHOICE_ONLY=ON -DMRTOOLBAR_QT_MAJOR=6 -DEXPECTED_QT=6)
    file(REMOVE_RECURSE ${ROOT}/prefix/lib/cmake/MRToolBar-qt${other}
        ${ROOT}/prefix/lib/${ARCHITECTURE}/cmake/MRToolBar-qt${other})
endif()
execute_process(COMMAND ${configure_host} -B ${ROOT}/missing -DCHOICE_ONLY=ON -DMRTOOLBAR_QT_MAJOR=${other}
    RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE error)
if(result EQUAL 0 OR NOT error MATCHES "for Qt ${QT}, but[ \n]+MRTOOLBAR_QT_MAJOR[ \n]+is[ \n]+${other}")
    message(FATAL_ERROR "The error does not name the missing version of Qt:\n${error}")
endif()
