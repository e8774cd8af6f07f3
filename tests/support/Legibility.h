// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

#include <map>

class QWidget;

/** Measures how well texts and icons can be seen in pictures of controls, and keeps the worst. */
class Legibility
{
public:
    /** What there must be, from 1 to 21; of what is disabled less is asked. */
    Legibility(double text, double icon)
        : m_leastText(text)
        , m_leastIcon(icon)
    {
    }

    void addText(const QString &state, const QString &what, const QImage &picture);
    void addIcon(const QString &state, const QString &what, const QImage &picture);

    /** What can be seen too badly. */
    const QStringList &faults() const { return m_faults; }
    /** The lowest contrast of each state, one line each. */
    QString lowest() const;
    /** How many pictures there were. */
    int count() const { return m_count; }

    /** The highest contrast of any colour of the picture with the most frequent one. */
    static double contrastIn(const QImage &picture);

    inline static const QString disabled = QStringLiteral("disabled");

private:
    void add(const QString &state, const QString &what, const QImage &picture, double least);

    struct Lowest
    {
        double contrast = 21;
        QString what;
    };

    double m_leastText;
    double m_leastIcon;
    std::map<QString, Lowest> m_lowest;
    QStringList m_faults;
    int m_count = 0;
};
