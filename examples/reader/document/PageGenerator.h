// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Page.h"

/** Generates pages from a seed: the same seed always gives the same text. */
namespace PageGenerator {

/** The number of pages of the document with that seed. */
int pageCount(quint32 seed);

/** The page of that number, counted from 1. */
Page page(quint32 seed, int number);

} // namespace PageGenerator
