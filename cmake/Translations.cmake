# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Catalogues of translated texts: compiled while building, embedded into what shows the texts, and
# brought up to date by hand. Nothing is written into the sources but by the target that says so.
if(MRTOOLBAR_TRANSLATIONS)
    find_package(${qt}LinguistTools ${qt_minimum} QUIET)
    if(NOT TARGET ${qt}::lrelease)
        message(WARNING
            "Building without translations, as the tools that compile them are missing: "
            "qttools5-dev for Qt 5, qt6-tools-dev and qt6-l10n-tools for Qt 6. "
            "-DMRTOOLBAR_TRANSLATIONS=OFF says that this is meant.")
        set(MRTOOLBAR_TRANSLATIONS OFF)
    elseif(TARGET ${qt}::lupdate)
        add_custom_target(mrtoolbar_update_translations)
    endif()
endif()

# embed_translations(<target> <prefix> <catalogue.ts>... [DESCRIPTIONS <catalogue.ts>...]): the
# compiled catalogues become resources of the target below the prefix, and their paths the target's
# property COMPILED_TRANSLATIONS. The texts of descriptions are compiled into the catalogue of the
# same language: a host installs one translator for both.
function(embed_translations target prefix)
    if(NOT MRTOOLBAR_TRANSLATIONS)
        return()
    endif()
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" DESCRIPTIONS)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/translations)
    set(entries "")
    foreach(catalogue IN LISTS arg_UNPARSED_ARGUMENTS)
        cmake_path(ABSOLUTE_PATH catalogue)
        cmake_path(GET catalogue STEM name)
        string(REGEX MATCH "_.*" language ${name})
        set(described ${arg_DESCRIPTIONS})
        list(FILTER described INCLUDE REGEX "${language}\\.ts$")
        list(TRANSFORM described PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
        add_custom_command(
            OUTPUT ${folder}/${name}.qm
            COMMAND ${qt}::lrelease -silent ${catalogue} ${described} -qm ${folder}/${name}.qm
            DEPENDS ${catalogue} ${described}
            VERBATIM)
        list(APPEND compiled ${folder}/${name}.qm)
        string(APPEND entries
            "    <file compress-algo=\"zlib\" threshold=\"0\">${name}.qm</file>\n")
    endforeach()

    file(CONFIGURE OUTPUT ${folder}/${target}.qrc @ONLY
        CONTENT "<RCC>\n  <qresource prefix=\"@prefix@\">\n@entries@  </qresource>\n</RCC>\n")
    set(source ${folder}/${target}_translations.cpp)
    add_custom_command(
        OUTPUT ${source}
        COMMAND ${qt}::rcc --name ${target}_translations --output ${source} ${folder}/${target}.qrc
        DEPENDS ${compiled} ${folder}/${target}.qrc
        VERBATIM)
    set_source_files_properties(${source} PROPERTIES SKIP_AUTOGEN ON)
    target_sources(${target} PRIVATE ${source})
    set_target_properties(${target} PROPERTIES COMPILED_TRANSLATIONS "${compiled}")
endfunction()

# maintain_translations(<name> <catalogue.ts>...): the catalogues hold the texts of the sources below
# the current directory. The target mrtoolbar_update_translations writes new texts into them, and a
# test tells when that is due, or a translation.
function(maintain_translations name)
    if(NOT TARGET mrtoolbar_update_translations)
        return()
    endif()
    list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE catalogues)
    set(update -silent -locations none -I ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
    add_custom_target(update_translations_of_${name}
        COMMAND ${qt}::lupdate -no-obsolete ${update} -ts ${catalogues}
        VERBATIM)
    add_dependencies(mrtoolbar_update_translations update_translations_of_${name})
    if(PROJECT_IS_TOP_LEVEL AND BUILD_TESTING)
        add_test(NAME ${name}_translations_are_complete
            COMMAND ${CMAKE_COMMAND} "-DUPDATE=$<TARGET_FILE:${qt}::lupdate>;${update};-ts"
                    "-DCATALOGUES=${catalogues}"
                    -DFOLDER=${CMAKE_CURRENT_BINARY_DIR}/translations/check
                    -P ${PROJECT_SOURCE_DIR}/tests/support/CheckTranslations.cmake)
    endif()
endfunction()

# maintain_description_texts(<name> <catalogue.ts> <description.xml>...): the same for the texts of
# descriptions.
function(maintain_description_texts name catalogue)
    if(NOT TARGET mrtoolbar_update_translations OR NOT MRTOOLBAR_BUILD_TOOLS)
        return()
    endif()
    cmake_path(ABSOLUTE_PATH catalogue)
    set(update --texts --no-locations ${ARGN} -o)
    add_custom_target(update_texts_of_${name}
        COMMAND mrtoolbar-check ${update} ${catalogue}
        VERBATIM)
    add_dependencies(mrtoolbar_update_translations update_texts_of_${name})
    if(PROJECT_IS_TOP_LEVEL AND BUILD_TESTING)
        add_test(NAME ${name}_are_translated
            COMMAND ${CMAKE_COMMAND} "-DUPDATE=$<TARGET_FILE:mrtoolbar-check>;${update}"
                    "-DCATALOGUES=${catalogue}"
                    -DFOLDER=${CMAKE_CURRENT_BINARY_DIR}/translations/check
                    -P ${PROJECT_SOURCE_DIR}/tests/support/CheckTranslations.cmake)
    endif()
endfunction()
