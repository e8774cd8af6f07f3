# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# The PROGRAMS print their texts without a display, and the first of them, the reader, ends a picture
# of the file BROKEN with one line.
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
set(ENV{DISPLAY} "${display}")
execute_process(COMMAND ${reader} --language en --screenshot picture.png ${BROKEN}
    RESULT_VARIABLE result ERROR_VARIABLE error TIMEOUT 60)
if(NOT result EQUAL 1 OR NOT error MATCHES "mrtoolbar-reader: Cannot open [^\n]+\n$")
    message(SEND_ERROR "${reader} --screenshot: ${result}\n${error}")
endif()
