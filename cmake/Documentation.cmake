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
configure_file(${PROJECT_SOURCE_DIR}/docs/Doxyfile.in ${PROJECT_BINARY_DIR}/docs/Doxyfile @ONLY)
add_custom_target(docs
    COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/docs/Doxyfile
    COMMENT "Generating the documentation"
    VERBATIM)
