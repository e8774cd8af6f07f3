# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# What every target of this project is compiled with, and nobody who links to it.
add_library(mrtoolbar_options INTERFACE)
target_compile_features(mrtoolbar_options INTERFACE cxx_std_17)
target_compile_options(mrtoolbar_options INTERFACE -Wall -Wextra -Wpedantic)
# Calls that a newer version of Qt removes are errors.
if(MRTOOLBAR_QT_MAJOR EQUAL 5)
    target_compile_definitions(mrtoolbar_options INTERFACE QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
else()
    target_compile_definitions(mrtoolbar_options INTERFACE QT_DISABLE_DEPRECATED_BEFORE=0x060400)
endif()
if(MRTOOLBAR_WERROR)
    target_compile_options(mrtoolbar_options INTERFACE -Werror)
endif()
if(MRTOOLBAR_SANITIZE)
    target_compile_options(mrtoolbar_options INTERFACE
        -fsanitize=${MRTOOLBAR_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    target_link_options(mrtoolbar_options INTERFACE -fsanitize=${MRTOOLBAR_SANITIZE})
endif()
