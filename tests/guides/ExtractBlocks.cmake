# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Writes each fenced block of the guides into a file of its own below <folder>.
#
# The line that opens a block gives its kind:
#   cpp           a complete source file
#   cpp host      the body of a function that has the host's window and toolBar
#   cpp skin-map  a declaration of a skin map
#   xml           a description, one section of one, or (xml row) the controls of a row;
#                 picture=<name> asks for its picture
#   cmake, sh, text  not checked
# Any other block is an error, so that every block is checked on purpose or left out on purpose.

# guides_write(<file> <content>): does not touch an unchanged file, so that nothing is rebuilt.
function(guides_write file content)
    set(former "")
    if(EXISTS ${file})
        file(READ ${file} former)
    endif()
    if(NOT former STREQUAL content)
        file(WRITE ${file} "${content}")
    endif()
endfunction()

# guides_store(<guide> <number> <info> <code> <folder>): files one block under its kind.
function(guides_store guide number info code folder)
    set(name ${guide}-${number})
    if(info STREQUAL "cpp")
        guides_write(${folder}/${name}.cpp "${code}")
        set_property(GLOBAL APPEND PROPERTY GUIDE_SOURCES ${folder}/${name}.cpp)
    elseif(info STREQUAL "cpp host")
        string(MAKE_C_IDENTIFIER "${name}" identifier)
        set_property(GLOBAL APPEND_STRING PROPERTY GUIDE_BODIES
            "// ${name}\nvoid ${identifier}(QMainWindow &window, MRToolBar &toolBar)\n{\n"
            "    Q_UNUSED(window)\n    Q_UNUSED(toolBar)\n${code}}\n\n")
    elseif(info STREQUAL "cpp skin-map")
        set_property(GLOBAL APPEND_STRING PROPERTY GUIDE_SKIN_MAPS "// ${name}\n${code}\n")
    elseif(info MATCHES "^xml( row)?( picture=([a-z-]+))?$")
        # The test and the program that takes the pictures read the kind from the file name.
        set(kind section)
        if(CMAKE_MATCH_1)
            set(kind row)
        endif()
        set(file ${folder}/${name}.${kind}.${CMAKE_MATCH_3}.xml)
        guides_write(${file} "${code}")
        set_property(GLOBAL APPEND PROPERTY GUIDE_DESCRIPTIONS ${file})
    elseif(NOT info MATCHES "^(cmake|sh|text)$")
        message(FATAL_ERROR "${guide}.md: there is no check for a block of '${info}'")
    endif()
endfunction()

# guides_extract(<guide.md> <folder>)
function(guides_extract guide folder)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${guide})
    cmake_path(GET guide STEM stem)
    file(READ ${guide} text)
    if(text MATCHES "\n +```")
        message(FATAL_ERROR "${guide}: an indented block would not be checked")
    endif()
    set(fence "\n```")
    set(number 0)
    while(TRUE)
        string(FIND "${text}" "${fence}" start)
        if(start EQUAL -1)
            break()
        endif()
        math(EXPR start "${start} + 4")
        string(SUBSTRING "${text}" ${start} -1 text)
        string(FIND "${text}" "\n" infoEnd)
        string(SUBSTRING "${text}" 0 ${infoEnd} info)
        string(FIND "${text}" "${fence}" end)
        if(end EQUAL -1)
            message(FATAL_ERROR "${guide}: a block is not closed")
        endif()
        math(EXPR codeStart "${infoEnd} + 1")
        math(EXPR length "${end} - ${infoEnd}")
        string(SUBSTRING "${text}" ${codeStart} ${length} code)
        math(EXPR end "${end} + 4")
        string(SUBSTRING "${text}" ${end} -1 text)
        math(EXPR number "${number} + 1")
        guides_store(${stem} ${number} "${info}" "${code}" ${folder})
    endwhile()
endfunction()

# guides_remove_others(<folder>): removes descriptions that no guide contains any more.
function(guides_remove_others folder)
    get_property(known GLOBAL PROPERTY GUIDE_DESCRIPTIONS)
    file(GLOB_RECURSE files ${folder}/*.xml)
    foreach(file IN LISTS files)
        if(NOT file IN_LIST known)
            file(REMOVE ${file})
        endif()
    endforeach()
endfunction()
