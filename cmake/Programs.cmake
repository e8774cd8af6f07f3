# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# install_program(<target> <component> [EXPORT <export>]): the program, which finds the library beside
# itself wherever the installed tree is, with its manual page and its bash completion in packaging/.
function(install_program target component)
    file(RELATIVE_PATH library_from_program
        ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${library_from_program}")
    install(TARGETS ${target} ${ARGN}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        COMPONENT ${component})
    set(source ${PROJECT_SOURCE_DIR}/packaging)
    install_compressed(${source}/man/${target}.1 ${CMAKE_INSTALL_MANDIR}/man1/${target}.1
        ${component})
    install(FILES ${source}/completion/${target}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        COMPONENT ${component})
endfunction()

# install_compressed(<file> <path> <component>): as <path>.gz, always with the same bytes.
find_program(GZIP gzip)
function(install_compressed file path component)
    cmake_path(GET path PARENT_PATH folder)
    cmake_path(GET path FILENAME name)
    if(NOT GZIP)
        install(FILES ${file} DESTINATION ${folder} RENAME ${name} COMPONENT ${component})
        return()
    endif()
    set(compressed ${PROJECT_BINARY_DIR}/package/${component}/${name}.gz)
    install(CODE "
        file(MAKE_DIRECTORY \"${PROJECT_BINARY_DIR}/package/${component}\")
        execute_process(COMMAND ${GZIP} -9nc \"${file}\" OUTPUT_FILE \"${compressed}\"
            COMMAND_ERROR_IS_FATAL ANY)"
        COMPONENT ${component})
    install(FILES ${compressed} DESTINATION ${folder} COMPONENT ${component})
endfunction()
