// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QStringList>

#include <optional>

/**
 * What the user has made of a toolbar, and the host of its looks, between two runs; as a text, one
 * line for the host to store. Names are object names.
 *
 * What a text does not say is empty or has no value here, and stays what it is when the state is
 * restored.
 */
struct KeptState
{
    QString tab; ///< The one on show.
    std::optional<bool> isFolded;
    QStringList shown;  ///< Of the described quick access buttons. Those of neither list are as
    QStringList hidden; ///< described: another description may have more.
    std::optional<QStringList> added; ///< The commands that the user has added to quick access.
    std::optional<QStringList> found; ///< The commands that were found last.
    QMap<QString, QString> faces;     ///< By drop button, the entry that it shows.
    QString scale;                    ///< As the skin map says it.
    QString scheme;                   ///< Likewise.

    /** What is beyond the limits of fromText() is left out. */
    QString toText() const;

    /**
     * Reads the text of this version or of another, of which it takes what it knows. Nothing for a
     * text that is none, or is longer than any that toText() writes; at most a hundred names of a
     * hundred characters each are read from a list.
     */
    static std::optional<KeptState> fromText(const QString &text);
};
