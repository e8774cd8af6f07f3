# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# The PROGRAMS print their texts without a display, and the first of them, the reader, makes files of
# the document WHOLE there; it ends with one line for the file BROKEN, and on a display, too.
unset(ENV{QT_QPA_PLATFORM})
set(display "$ENV{DISPLAY}")
unset(ENV{DISPLAY})
foreach(program IN LISTS PROGRAMS)
    get_filename_component(name ${program} NAME)
    foreach(option IN ITEMS --help -h --version -v)
        execute_process(COMMAND ${program} ${option}
            RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE error)
        if(NOT result EQUAL 0 OR NOT output MATCHES "${name}" OR NOT error STREQUAL "")
            message(SEND_ERROR "${program} ${option}: ${result}\n${output}${error}")
        endif()
    endforeach()
endforeach()

list(GET PROGRAMS 0 reader)
# make_file(OPTION FILE RESULT ERROR DOCUMENT): OPTION ends with this result and matching error.
function(make_file option file wanted pattern document)
    file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${file})
    execute_process(COMMAND ${reader} --language en ${option} ${file} ${document}
        RESULT_VARIABLE result ERROR_VARIABLE error TIMEOUT 60)
    string(REPLACE "This plugin does not support propagateSizeHints()\n" "" error "${error}")
    file(GLOB left ${CMAKE_CURRENT_BINARY_DIR}/${file})
    list(LENGTH left count)
    math(EXPR refused "1 - ${count}")
    if(NOT result EQUAL wanted OR NOT error MATCHES "${pattern}" OR NOT refused EQUAL wanted)
        message(SEND_ERROR "${reader} ${option} ${file} ${document}: ${result}\n${error}")
    endif()
endfunction()
set(refusal "^mrtoolbar-reader: Cannot open [^\n]+\n$")
# The language is that of the system, unless it was chosen.
set(ENV{XDG_CONFIG_HOME} ${CMAKE_CURRENT_BINARY_DIR}/no-settings)
foreach(pair IN ITEMS C:Cannot zh_CN.UTF-8:[^C] en_GB.UTF-8:Cannot zh_TW.UTF-8:[^C])
    string(REPLACE ":" ";" pair ${pair})
    list(GET pair 0 locale)
    list(GET pair 1 begin)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=${locale} ${reader} --print-to made.pdf ${BROKEN}
        RESULT_VARIABLE result ERROR_VARIABLE error TIMEOUT 60)
    if(NOT result EQUAL 1 OR NOT error MATCHES "mrtoolbar-reader: ${begin}[^\n]+\n$")
        message(SEND_ERROR "${reader} in ${locale}: ${result}\n${error}")
    endif()
endforeach()
foreach(DISPLAY IN ITEMS "" "${display}")
    if(DISPLAY)
        set(ENV{DISPLAY} "${DISPLAY}")
    endif()
    make_file(--print-to made.pdf 0 "^$" ${WHOLE})
    make_file(--screenshot made.jpg 0 "^$" ${WHOLE})
    make_file(--print-to made.pdf 1 "${refusal}" ${BROKEN})
    make_file(--screenshot made.jpg 1 "${refusal}" ${BROKEN})
    make_file(--screenshot made.odd 1 "^mrtoolbar-reader: --screenshot takes [^\n]+\n$" ${WHOLE})
endforeach()
