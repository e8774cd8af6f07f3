# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# The library from SOURCE as a part of another project, which has found Qt in version QT: shared or
# static as SHARED says. A static one is also installed, and hosts are built with that. ROOT is the
# folder to work in.
include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)
set_configure_host(${GENERATOR})
list(APPEND configure_host -DOWN_QT=${QT} -DEXPECTED_QT=${QT})
set(choices -DBUILD_SHARED_LIBS=${SHARED})
if(NOT SHARED)
    list(APPEND choices -DMRTOOLBAR_INSTALL=ON)
endif()
run(${configure_host} -B ${ROOT}/build -DSUBPROJECT=${SOURCE} ${choices})
run(${CMAKE_COMMAND} --build ${ROOT}/build)
run_hosts(${ROOT}/build)

file(REMOVE_RECURSE ${ROOT}/prefix)
run(${CMAKE_COMMAND} --install ${ROOT}/build --prefix ${ROOT}/prefix)
if(SHARED)
    if(EXISTS ${ROOT}/prefix)
        message(FATAL_ERROR "A subproject installs something without being told to")
    endif()
    return()
endif()
run(${configure_host} -B ${ROOT}/package -DCMAKE_PREFIX_PATH=${ROOT}/prefix)
run(${CMAKE_COMMAND} --build ${ROOT}/package)
run_hosts(${ROOT}/package)
