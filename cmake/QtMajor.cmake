# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# mrtoolbar_wanted_qt(<major> <reason>): the major version of Qt that the calling project asks for or
# has found already, and what says so; both are empty if nothing does, or if both versions are there.
# It is used in building the library and by its installed package.
function(mrtoolbar_wanted_qt major_variable reason_variable)
    set(major "")
    set(reason "")
    foreach(name IN ITEMS MRTOOLBAR_QT_MAJOR QT_VERSION_MAJOR QT_DEFAULT_MAJOR_VERSION)
        if(NOT major AND DEFINED ${name} AND NOT "${${name}}" STREQUAL "")
            set(major "${${name}}")
            set(reason "${name} is ${major}")
        endif()
    endforeach()
    if(NOT major AND TARGET Qt5::Core AND NOT TARGET Qt6::Core)
        set(major 5)
        set(reason "the project has found Qt 5")
    elseif(NOT major AND TARGET Qt6::Core AND NOT TARGET Qt5::Core)
        set(major 6)
        set(reason "the project has found Qt 6")
    endif()
    set(${major_variable} "${major}" PARENT_SCOPE)
    set(${reason_variable} "${reason}" PARENT_SCOPE)
endfunction()
