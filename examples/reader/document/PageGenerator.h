// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Page.h"

/** Makes pages out of nothing but numbers: the same seed gives the same text every time. */
namespace PageGenerator {

/** How many pages a document of that seed has. */
int pageCount(quint32 seed);

/** The page of that number, counted from 1. */
Page page(quint32 seed, int number);

} // namespace PageGenerator
