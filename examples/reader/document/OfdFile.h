// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Page.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QPair>
#include <QStringList>

/** An entry of the outline or a bookmark. */
struct NamedPlace
{
    QString name;
    int depth = 0;
    int page = -1; ///< Counted from 0; -1 without a target.
};

/** What the reader reads from a file besides its pages. All is empty for generated pages. */
struct OfdFile
{
    Q_DECLARE_TR_FUNCTIONS(OfdFile)

public:
    QByteArray archive; ///< The file itself, as it was read.
    QVector<QPair<QString, QString>> information;
    QList<NamedPlace> outline;
    QList<NamedPlace> bookmarks;
    QStringList attachments;
    QString leftOut; ///< One line about what is not shown as it should be; empty if all is.

    /** Reads a file; on failure changes nothing and sets @p error to one sentence. */
    bool read(const QString &fileName, QList<Page> *pages, QString *error);
};
