// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Page.h"
#include "ofd/Document.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QPair>
#include <QStringList>

namespace Ofd {
struct Document;
}

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
    std::shared_ptr<const Ofd::Document> document;
    QByteArray archive; ///< The file itself, as it was read.
    QVector<QPair<QString, QString>> information;
    QList<NamedPlace> outline;
    QList<NamedPlace> bookmarks;
    QStringList attachments;
    bool isSigned = false;

    /** The sentence about a page that is not shown. */
    static QString faultOf(int page, const QString &fault);
    /** One line about what cannot be shown in the pages seen so far; empty if all can. */
    QString leftOut() const;

    /**
     * Reads one of the documents of a file; on failure changes nothing and sets @p error to one
     * sentence.
     */
    bool read(const QString &fileName, QList<Page> *pages, QString *error, int body = 0);

private:
    mutable QStringList m_missingFonts;
    mutable int m_testedFonts = 0;
};
