// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTest>

#include <cstddef>

/** Adds a row for each entry of a table, named by its member @c name. */
template <typename Entry, std::size_t count>
void addRows(const Entry (&table)[count])
{
    QTest::addColumn<int>("entry");
    for (std::size_t i = 0; i < count; ++i)
        QTest::newRow(table[i].name) << static_cast<int>(i);
}

/** The entry of the current row. */
template <typename Entry, std::size_t count>
const Entry &rowOf(const Entry (&table)[count])
{
    QFETCH(int, entry);
    return table[entry];
}
