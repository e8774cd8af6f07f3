# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# mrtoolbar_add_description(<target> FILES <description.xml>... [ICONS <folder>] [SKINS <skin>...]
#                           [NAMES <header.h>] [CHECK_OPTIONS <option>...])
#
# Puts descriptions and icons into the resources of the target where those of the library are:
#   :/mr_toolbar/Resources/<skin>/<description.xml>
#   :/mr_toolbar/Resources/<skin>/icons/<path below the folder>
# for the skins marodi and lum, or those of SKINS. What is in a folder marodi or lum is for that skin
# only: a description directly in one, an icon anywhere below <folder>/marodi or <folder>/lum.
#
# While building, mrtoolbar-check checks the descriptions with these icons; an error stops the build.
# CHECK_OPTIONS has more options for it, such as --werror, --tooltipwords or --resources <more.qrc>.
# NAMES makes a header with a constant for each name, which the target includes by that path.

cmake_policy(VERSION 3.25)

function(mrtoolbar_add_description target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "ICONS;NAMES" "FILES;SKINS;CHECK_OPTIONS")
    _mrtoolbar_make_absolute(arg_FILES)
    _mrtoolbar_make_absolute(arg_ICONS)
    _mrtoolbar_check_arguments()

    # A target may have several of these, each with its own folder.
    get_property(count TARGET ${target} PROPERTY MRTOOLBAR_DESCRIPTIONS)
    math(EXPR count "${count} + 1")
    set_property(TARGET ${target} PROPERTY MRTOOLBAR_DESCRIPTIONS ${count})
    set(id ${target}_description_${count})
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${id})
    set(icons "")
    if(arg_ICONS)
        file(GLOB_RECURSE icons CONFIGURE_DEPENDS ${arg_ICONS}/*)
    endif()

    _mrtoolbar_embed_description()
    if(TARGET MRToolBar::check)
        _mrtoolbar_check_description()
    elseif(arg_NAMES)
        message(FATAL_ERROR "mrtoolbar_add_description: NAMES needs the program mrtoolbar-check, "
            "which is not installed with this MRToolBar")
    else()
        message(WARNING "mrtoolbar_add_description: the descriptions of ${target} are not checked, "
            "because mrtoolbar-check is not installed with this MRToolBar")
    endif()
endfunction()

# The functions below share the variables of the one above.

function(_mrtoolbar_make_absolute paths)
    set(absolute "")
    foreach(path IN LISTS ${paths})
        cmake_path(ABSOLUTE_PATH path NORMALIZE)
        string(REGEX REPLACE "/$" "" path ${path})
        list(APPEND absolute ${path})
    endforeach()
    set(${paths} ${absolute} PARENT_SCOPE)
endfunction()

macro(_mrtoolbar_check_arguments)
    set(all_skins marodi lum)
    set(fault "")
    if(NOT TARGET ${target})
        set(fault "there is no target '${target}'")
    elseif(arg_UNPARSED_ARGUMENTS OR arg_KEYWORDS_MISSING_VALUES)
        set(fault "wrong arguments: ${arg_UNPARSED_ARGUMENTS} ${arg_KEYWORDS_MISSING_VALUES}")
    elseif(NOT arg_FILES)
        set(fault "FILES must have a description")
    endif()
    foreach(path IN LISTS arg_FILES arg_ICONS)
        if(NOT EXISTS ${path})
            set(fault "there is no '${path}'")
        endif()
    endforeach()
    if(NOT arg_SKINS)
        set(arg_SKINS ${all_skins})
    endif()
    foreach(skin IN LISTS arg_SKINS)
        if(NOT skin IN_LIST all_skins)
            set(fault "there is no skin '${skin}', only marodi and lum")
        endif()
    endforeach()
    if(fault)
        message(FATAL_ERROR "mrtoolbar_add_description: ${fault}")
    endif()
endmacro()

# Sets <result> to the skin that the path is for alone; empty for one that is for all.
function(_mrtoolbar_skin_of result name)
    set(${result} "" PARENT_SCOPE)
    if(name IN_LIST all_skins)
        set(${result} ${name} PARENT_SCOPE)
    endif()
endfunction()

# Appends the element of a .qrc file to <elements>.
function(_mrtoolbar_append_file elements alias path)
    string(REPLACE "&" "&amp;" line "    <file alias=\"${alias}\">${path}</file>\n")
    set(${elements} "${${elements}}${line}" PARENT_SCOPE)
endfunction()

# The resources of one skin, appended to <content>.
function(_mrtoolbar_append_skin content skin)
    set(documents "")
    foreach(file IN LISTS arg_FILES)
        cmake_path(GET file PARENT_PATH parent)
        cmake_path(GET parent FILENAME parent)
        cmake_path(GET file FILENAME name)
        _mrtoolbar_skin_of(only "${parent}")
        if(NOT only OR only STREQUAL skin)
            _mrtoolbar_append_file(documents ${name} ${file})
        endif()
    endforeach()
    set(pictures "")
    foreach(icon IN LISTS icons)
        cmake_path(RELATIVE_PATH icon BASE_DIRECTORY ${arg_ICONS} OUTPUT_VARIABLE name)
        string(REGEX REPLACE "/.*" "" top ${name})
        _mrtoolbar_skin_of(only ${top})
        if(only STREQUAL skin)
            cmake_path(RELATIVE_PATH icon BASE_DIRECTORY ${arg_ICONS}/${skin} OUTPUT_VARIABLE name)
        endif()
        if(NOT only OR only STREQUAL skin)
            _mrtoolbar_append_file(pictures ${name} ${icon})
        endif()
    endforeach()
    set(prefix /mr_toolbar/Resources/${skin})
    string(APPEND ${content}
        "  <qresource prefix=\"${prefix}\">\n${documents}  </qresource>\n"
        "  <qresource prefix=\"${prefix}/icons\">\n${pictures}  </qresource>\n")
    set(${content} "${${content}}" PARENT_SCOPE)
endfunction()

function(_mrtoolbar_embed_description)
    set(resources "")
    foreach(skin IN LISTS arg_SKINS)
        _mrtoolbar_append_skin(resources ${skin})
    endforeach()
    file(CONFIGURE OUTPUT ${folder}/${id}.qrc CONTENT "<RCC>\n${resources}</RCC>\n" @ONLY)

    # The version of Qt is that of the library. A parent project may not have found it itself.
    get_target_property(links MRToolBar::MRToolBar INTERFACE_LINK_LIBRARIES)
    string(REGEX MATCH "Qt[56]" qt "${links}")
    find_package(${qt} REQUIRED COMPONENTS Core)
    string(MAKE_C_IDENTIFIER ${id} resource)
    set(source ${folder}/${id}.cpp)
    add_custom_command(
        OUTPUT ${source}
        COMMAND ${qt}::rcc --name ${resource} --output ${source} ${folder}/${id}.qrc
        DEPENDS ${folder}/${id}.qrc ${arg_FILES} ${icons}
        VERBATIM)
    set_source_files_properties(${source} PROPERTIES SKIP_AUTOGEN ON)
    target_sources(${target} PRIVATE ${source})
endfunction()

function(_mrtoolbar_check_description)
    set(options --errors-fail ${arg_CHECK_OPTIONS})
    if(arg_ICONS)
        list(APPEND options --resources ${arg_ICONS})
    endif()
    list(LENGTH arg_SKINS skin_count)
    set(stamps "")
    foreach(file IN LISTS arg_FILES)
        cmake_path(GET file PARENT_PATH parent)
        cmake_path(GET parent FILENAME parent)
        cmake_path(GET file FILENAME name)
        _mrtoolbar_skin_of(skin "${parent}")
        if(NOT skin AND skin_count EQUAL 1)
            set(skin ${arg_SKINS})
        endif()
        list(LENGTH stamps number)
        set(stamp ${folder}/${number}-${name}.checked)
        add_custom_command(
            OUTPUT ${stamp}
            COMMAND MRToolBar::check ${options} "$<$<BOOL:${skin}>:--skin;${skin}>" ${file}
            COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
            DEPENDS ${file} ${icons} $<TARGET_FILE:MRToolBar::check>
            COMMENT "Checking the description ${name}"
            COMMAND_EXPAND_LISTS
            VERBATIM)
        list(APPEND stamps ${stamp})
    endforeach()
    if(arg_NAMES)
        _mrtoolbar_write_names()
    endif()
    add_custom_target(${id} DEPENDS ${stamps})
    add_dependencies(${target} ${id})
endfunction()

# The header keeps its time if nothing changes in it, so the stamp tells that it is up to date.
macro(_mrtoolbar_write_names)
    cmake_path(GET arg_NAMES PARENT_PATH header_folder)
    file(MAKE_DIRECTORY ${folder}/include/${header_folder})
    set(header ${folder}/include/${arg_NAMES})
    add_custom_command(
        OUTPUT ${folder}/names.written
        BYPRODUCTS ${header}
        COMMAND MRToolBar::check --names ${arg_FILES} -o ${header}
        COMMAND ${CMAKE_COMMAND} -E touch ${folder}/names.written
        DEPENDS ${stamps}
        COMMENT "Writing ${arg_NAMES}"
        VERBATIM)
    list(APPEND stamps ${folder}/names.written)
    target_include_directories(${target} PRIVATE ${folder}/include)
endmacro()
