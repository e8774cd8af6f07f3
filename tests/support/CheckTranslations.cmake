# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Updates copies of the CATALOGUES in FOLDER by a call of UPDATE and the path. A source text that a
# catalogue lacks is then marked as unfinished, one that no source has any more as vanished.
set(faults "")
foreach(catalogue IN LISTS CATALOGUES)
    cmake_path(GET catalogue FILENAME name)
    file(COPY ${catalogue} DESTINATION ${FOLDER})
    execute_process(COMMAND ${UPDATE} ${FOLDER}/${name} COMMAND_ERROR_IS_FATAL ANY)
    file(READ ${FOLDER}/${name} text)
    # Brackets and semicolons have a meaning in CMake lists.
    string(REGEX REPLACE "[][;]" "." text "${text}")
    if(NOT text MATCHES "<message")
        list(APPEND faults "${name} is empty")
    endif()
    set(comments "(<(extra)?comment>[^<]*</(extra)?comment>[ \n]*)*")
    string(REGEX MATCHALL
        "<source>[^<]*</source>[ \n]*${comments}<translation( type=[^>]*>|></|/>)" open "${text}")
    foreach(message IN LISTS open)
        string(REGEX REPLACE "<source>([^<]*)</source>.*" "\\1" source "${message}")
        set(state "not translated")
        if(message MATCHES "type=.(vanished|obsolete)")
            set(state "in no source any more")
        endif()
        list(APPEND faults "${name}: '${source}' is ${state}")
    endforeach()
endforeach()
if(faults)
    list(JOIN faults "\n  " faults)
    message(FATAL_ERROR "The target mrtoolbar_update_translations helps with these texts:\n  ${faults}")
endif()
