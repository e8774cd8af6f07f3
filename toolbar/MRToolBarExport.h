// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/** Marks what the library exports; everything else is hidden. */
#ifdef MRTOOLBAR_BUILDING
#define MRTOOLBAR_EXPORT Q_DECL_EXPORT
#else
#define MRTOOLBAR_EXPORT Q_DECL_IMPORT
#endif
