# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# run(WORD...): runs a command, and ends the script with its output if it fails.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output
        ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\n${result}\n${output}")
    endif()
endfunction()

# Sets `configure_host` to the words that configure tests/package; the caller adds folder and choices.
macro(set_configure_host generator)
    set(configure_host ${CMAKE_COMMAND} -G ${generator} -S ${CMAKE_CURRENT_LIST_DIR}/../package
        -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0)
endmacro()

# run_hosts(<folder>): every host in it, without a display.
function(run_hosts folder)
    set(ENV{QT_QPA_PLATFORM} offscreen)
    file(GLOB hosts ${folder}/*_host)
    if(NOT hosts)
        message(FATAL_ERROR "There are no hosts in ${folder}")
    endif()
    foreach(host IN LISTS hosts)
        run(${host})
    endforeach()
endfunction()
