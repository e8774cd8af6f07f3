# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Builds a copy of the host with each of GENERATORS in FOLDER, and again with what must stop it.
# PACKAGE are the arguments by which CMake finds the library.

function(run result)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
    set(${result} ${code} PARENT_SCOPE)
    set(output "${output}" PARENT_SCOPE)
endfunction()

# Replaces a text of the description and builds; the build must fail and print the pattern.
function(expect_failure text replacement pattern)
    file(READ ${source}/bars/main.xml described)
    string(REPLACE ${text} ${replacement} changed "${described}")
    file(WRITE ${source}/bars/main.xml "${changed}")
    run(code ${CMAKE_COMMAND} --build ${build})
    if(code EQUAL 0 OR NOT output MATCHES ${pattern})
        message(FATAL_ERROR "'${pattern}' does not stop the build with ${generator}:\n${output}")
    endif()
    file(WRITE ${source}/bars/main.xml "${described}")
endfunction()

foreach(generator IN LISTS GENERATORS)
    string(MAKE_C_IDENTIFIER ${generator} name)
    set(source ${FOLDER}/${name}/source)
    set(build ${FOLDER}/${name}/build)
    file(REMOVE_RECURSE ${FOLDER}/${name})
    file(COPY ${CMAKE_CURRENT_LIST_DIR}/ DESTINATION ${source})
    run(code ${CMAKE_COMMAND} -G ${generator} -S ${source} -B ${build} ${PACKAGE})
    foreach(command "${CMAKE_COMMAND};--build;${build}" ${build}/described_host)
        if(code EQUAL 0)
            run(code ${command})
        endif()
    endforeach()
    if(NOT code EQUAL 0)
        message(FATAL_ERROR "The host fails with ${generator}:\n${output}")
    endif()

    expect_failure("<button" "<separator/><button" "main\\.xml:3:9: error: ")
    expect_failure("action=\"h_open\"" "action=\"h_opened\"" "main\\.cpp:[0-9]+:.*h_open")
    run(code ${CMAKE_COMMAND} --build ${build})
    if(NOT code EQUAL 0)
        message(FATAL_ERROR "The mended host fails with ${generator}:\n${output}")
    endif()
endforeach()
