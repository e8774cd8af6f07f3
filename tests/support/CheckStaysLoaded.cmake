# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Checks with READELF that LIBRARY is never unloaded. A plug-in that is linked with it may be
# unloaded while Qt still refers to its types, resources and translations.
execute_process(COMMAND ${READELF} --dynamic --wide ${LIBRARY}
    OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
if(NOT output MATCHES "FLAGS_1[^\n]*NODELETE")
    message(FATAL_ERROR "${LIBRARY} may be unloaded")
endif()
