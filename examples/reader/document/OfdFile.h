// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/HiddenAnnotations.h"
#include "document/Mark.h"
#include "document/Page.h"
#include "document/PageLink.h"
#include "ofd/Document.h"
#include "ofd/Permissions.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QPair>
#include <QStringList>

#include <memory>

/** An entry of the outline or a bookmark. */
struct NamedPlace
{
    QString name;
    int depth = 0;
    PagePlace place; ///< Without a page if it leads nowhere.
    int origin = -1; ///< Which one of the file it is; -1 for a new bookmark.
};

/** What the reader reads from a file besides its pages. All is empty for generated pages. */
struct OfdFile
{
    Q_DECLARE_TR_FUNCTIONS(OfdFile)

public:
    std::shared_ptr<const Ofd::Document> document;
    QByteArray archive; ///< The file itself, as it was read.
    QVector<QPair<QString, QString>> information;
    QList<NamedPlace> outline;
    QList<NamedPlace> bookmarks;
    QStringList attachments;
    Ofd::Permissions permissions;
    bool isSigned = false;
    QList<Mark> marks;
    std::shared_ptr<HiddenAnnotations> hidden;

    /** The sentence about a page that is not shown. */
    static QString faultOf(int page, const QString &fault);
    /** One line about what cannot be shown in the pages seen so far; empty if all can. */
    QString leftOut() const;

    /**
     * Reads one of the documents of a file; on failure changes nothing and sets @p error to one
     * sentence.
     */
    bool read(const QString &fileName, QList<Page> *pages, QString *error,
              int body = Ofd::firstReadable);

    /** The top left corner of a page in the coordinates of the file. */
    QPointF cornerOf(int page) const;
    /** The content of an attached file; on failure sets @p error to one sentence. */
    QByteArray attachment(int index, QString *error) const;

private:
    mutable QStringList m_missingFonts;
    mutable int m_testedFonts = 0;
};
