// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/check/SourceDocument.h"

#include <QByteArray>
#include <QSet>
#include <QString>

/** A C++ header with a constant for each name of descriptions, so that none can be misspelt. */
class NamesHeader
{
public:
    /** Adds the names of a document whose roles are assigned, and those that it reports. */
    void add(const SourceDocument &document);

    /** @param origin the names of the files, for a comment */
    QByteArray content(const QString &origin) const;

    /** The name as an identifier; other names may have the same one. */
    static QString identifier(const QString &name);

private:
    QSet<QString> m_names;
};
