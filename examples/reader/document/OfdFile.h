// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/HiddenAnnotations.h"
#include "document/Mark.h"
#include "document/Page.h"
#include "ofd/Permissions.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QPair>
#include <QStringList>

#include <memory>

namespace Ofd {
struct Document;
} // namespace Ofd

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
    QString leftOut; ///< One line about what cannot be shown; empty if all can.
    Ofd::Permissions permissions;
    bool isSigned = false;
    QList<Mark> marks;
    std::shared_ptr<HiddenAnnotations> hidden;
    std::shared_ptr<const Ofd::Document> document; ///< What was read.

    /** Reads a file; on failure changes nothing and sets @p error to one sentence. */
    bool read(const QString &fileName, QList<Page> *pages, QString *error);

    /** The top left corner of a page in the coordinates of the file. */
    QPointF cornerOf(int page) const;
    /** The content of an attached file; on failure sets @p error to one sentence. */
    QByteArray attachment(int index, QString *error) const;

private:
    void readActs();
};
