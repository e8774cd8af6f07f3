# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Compares the symbols that LIBRARY exports, as NM prints them, with the classes and single members
# in LIST, and looks for code that LIBRARY would run on loading.
cmake_minimum_required(VERSION 3.25)
file(STRINGS ${LIST} listed REGEX "^[^#]")

execute_process(COMMAND ${NM} --dynamic --demangle --defined-only ${LIBRARY}
    OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE ";" "," output "${output}")
string(REPLACE "\n" ";" lines "${output}")

set(exported "")
foreach(line IN LISTS lines)
    # An address, a letter for the kind, the name. Symbols of the linker are not C++ names.
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
    # Templates of the standard library and of Qt's meta-type system set their own visibility.
    if(name MATCHES "^([a-z *]+ )?(std::|QMetaType|QMetaAssociation)")
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

# Resources register themselves on loading. A constant with a dynamic initialiser would cost every
# program that is linked with the library, also without a toolbar.
execute_process(COMMAND ${NM} --defined-only ${LIBRARY}
    OUTPUT_VARIABLE output ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "_GLOBAL__sub_I_[^\n]+" initialisers "${output}")
list(FILTER initialisers EXCLUDE REGEX "_sub_I_(qrc_|[^\n]*translations|00099)")
if(initialisers)
    list(JOIN initialisers "\n  " initialisers)
    message(FATAL_ERROR "On loading, the library runs\n  ${initialisers}")
endif()
