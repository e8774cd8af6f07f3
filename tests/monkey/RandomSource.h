// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>

#include <random>

/** The words of a text, for long lists of names without blanks. */
inline QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '));
}

/** All random numbers of a run, so that the seed determines the whole run. */
class RandomSource
{
public:
    explicit RandomSource(unsigned int seed)
        : m_engine(seed)
    {
    }

    /** From 0 to @p bound - 1. Distributions of the standard library differ between systems. */
    int below(int bound) { return static_cast<int>(m_engine() % static_cast<unsigned int>(bound)); }

    int between(int least, int most) { return least + below(most - least + 1); }

    bool oneIn(int times) { return below(times) == 0; }

    template <typename Value>
    Value oneOf(const QList<Value> &values)
    {
        return values.at(below(static_cast<int>(values.size())));
    }

private:
    std::mt19937 m_engine;
};
