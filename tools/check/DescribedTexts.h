// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVector>

#include <optional>

/** A text that a toolbar shows or speaks, with all places that it stands in. */
struct DescribedText
{
    struct Place
    {
        QString file; ///< As given; empty for a text of no file.
        int line = 0;
    };

    QString text;
    QVector<Place> places;
};

/** The texts of descriptions, each once, in the order in which they first appear. */
class DescribedTexts
{
public:
    /**
     * Adds the texts of a description.
     * @return what keeps it from being read, as "line:column: sentence"; nothing if it is read
     */
    std::optional<QString> add(const QByteArray &description, const QString &file);

    const QVector<DescribedText> &all() const { return m_all; }

private:
    void add(const QString &text, const DescribedText::Place &place);

    QVector<DescribedText> m_all;
    QHash<QString, int> m_positions; ///< By text.
};
