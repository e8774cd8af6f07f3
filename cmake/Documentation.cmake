# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# The target `docs`: the documentation of the installed headers and the guides, as pages for a
# browser in <build>/docs/html. Any warning is an error. Without Doxygen there is no such target.
find_package(Doxygen QUIET)
if(NOT Doxygen_FOUND)
    return()
endif()

set(documented
    README.md
    docs/host-guide.md
    docs/description-format.md
    docs/skins.md
    toolbar/MRToolBar.h
    toolbar/MRToolBarCommands.h
    toolbar/MRToolBarExport.h
    toolbar/NamedList.h
    toolbar/NewToolBar.h
    toolbar/ToolBarTypes.h
    toolbar/handwrite/MRHandWriteDialog.h
    toolbar/widgets/CCR_ToolTipWidget.h)
set(doxygen_input "")
foreach(file IN LISTS documented)
    string(APPEND doxygen_input " \\\n    \"${PROJECT_SOURCE_DIR}/${file}\"")
endforeach()
# A host reads what the toolbar tells before what it can be told: signals stand before slots.
set(doxygen_layout ${PROJECT_BINARY_DIR}/docs/layout.xml)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/docs)
execute_process(COMMAND ${DOXYGEN_EXECUTABLE} -l ${doxygen_layout} COMMAND_ERROR_IS_FATAL ANY)
file(READ ${doxygen_layout} layout)
string(REGEX REPLACE "(<publicslots[^>]*>)([ \n]*)(<signals[^>]*>)" "\\3\\2\\1" layout "${layout}")
file(WRITE ${doxygen_layout} "${layout}")
configure_file(${PROJECT_SOURCE_DIR}/docs/Doxyfile.in ${PROJECT_BINARY_DIR}/docs/Doxyfile @ONLY)
add_custom_target(docs
    COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/docs/Doxyfile
    COMMENT "Generating the documentation"
    VERBATIM)
