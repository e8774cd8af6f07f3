// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#if __cplusplus < 201703L && !defined(Q_MOC_RUN)
#error "The headers of MRToolBar need C++17: compile with -std=c++17 or a newer standard."
#endif

/** Marks what the library exports; everything else is hidden. A static library exports nothing. */
#if defined(MRTOOLBAR_STATIC)
#define MRTOOLBAR_EXPORT
#elif defined(MRTOOLBAR_BUILDING)
#define MRTOOLBAR_EXPORT Q_DECL_EXPORT
#else
#define MRTOOLBAR_EXPORT Q_DECL_IMPORT
#endif
