# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Fails unless the README shows the source of the smallest host exactly, without its licence lines.
file(READ ${README} readme)
file(READ ${SOURCE} source)
string(REGEX REPLACE "^(// SPDX-[^\n]*\n)+\n" "" source "${source}")
string(FIND "${readme}" "```cpp\n${source}```" position)
if(position EQUAL -1)
    message(FATAL_ERROR "The host code in ${README} is not that of ${SOURCE}")
endif()
