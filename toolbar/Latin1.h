// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>

#include <cstddef>

/**
 * A text that is a constant of the program for every compiler; Qt 5's own constructor is not
 * constant for all of them.
 */
template <std::size_t size>
constexpr QLatin1String latin1(const char (&text)[size])
{
    return QLatin1String(text, static_cast<int>(size) - 1);
}
