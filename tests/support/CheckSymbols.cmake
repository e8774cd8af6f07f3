# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Compares what LIBRARY exports, as NM tells it, with what is listed in LIST, whole classes or single
# members, and looks for code that LIBRARY would run on loading.
cmake_minimum_required(VERSION 3.25)
file(STRINGS ${LIST} listed REGEX "^[^#]")

execute_process(COMMAND ${NM} --dynamic --demangle --defined-only ${LIBRARY}
    OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE ";" "," output "${output}")
string(REPLACE "\n" ";" lines "${output}")

set(exported "")
foreach(line IN LISTS lines)
    # An address, a letter for the kind, the name. The linker's own marks are no C++ names.
    if(NOT line MATCHES "^[0-9a-f]+ [A-Za-z] (.+)$")
        continue()
    endif()
    set(name "${CMAKE_MATCH_1}")
    if(name MATCHES "^(__bss_start|_edata|_end|_init|_fini)$")
        continue()
    endif()
    # Builds without optimisation have copies of Qt's inline functions.
    if(line MATCHES "^[0-9a-f]+ [WV] Q[A-Z]")
        continue()
    endif()
    string(REGEX REPLACE
        "^(typeinfo name for|typeinfo for|vtable for|(non-)?virtual thunk to|guard variable for) "
        "" name "${name}")
    # Templates of the standard library and of Qt's type system carry a visibility of
    # their own.
    if(name MATCHES "^([a-z ]+ )?(std::|QMetaType|QMetaAssociation)")
        continue()
    endif()
    string(REGEX REPLACE "\\(.*$" "" member "${name}")
    string(REGEX REPLACE "(::|\\().*$" "" name "${name}")
    if(member IN_LIST listed)
        set(name "${member}")
    endif()
    list(APPEND exported "${name}")
endforeach()
list(REMOVE_DUPLICATES exported)
list(SORT exported)
list(SORT listed)
if(NOT exported STREQUAL listed)
    list(JOIN exported "\n  " exported)
    list(JOIN listed "\n  " listed)
    message(FATAL_ERROR "The library exports\n  ${exported}\nand not\n  ${listed}")
endif()

# The resources register themselves. A constant that has to be set up costs every program that is
# linked with the library, whether it makes a toolbar or not.
execute_process(COMMAND ${NM} --defined-only ${LIBRARY}
    OUTPUT_VARIABLE output ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "_GLOBAL__sub_I_[^\n]+" initialisers "${output}")
list(FILTER initialisers EXCLUDE REGEX "_sub_I_(qrc_|[^\n]*translations|00099)")
if(initialisers)
    list(JOIN initialisers "\n  " initialisers)
    message(FATAL_ERROR "On loading, the library runs\n  ${initialisers}")
endif()
