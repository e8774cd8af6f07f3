// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <utility>

class QXmlStreamReader;

/** An element of a catalogue of translations with all that is in it, or a text between elements. */
struct CatalogueNode
{
    QString tag; ///< Empty for a text.
    QVector<std::pair<QString, QString>> attributes;
    QVector<CatalogueNode> children;
    QString text; ///< Of a text only.

    static CatalogueNode ofText(const QString &tag, const QString &text);

    /** The text in the element and below it. */
    QString content() const;
    /** The first child of that tag; null if there is none. */
    const CatalogueNode *child(const QString &tag) const;
    CatalogueNode *child(const QString &tag);

    QString attribute(const QString &name) const;
    /** Sets an attribute; an empty value removes it. */
    void setAttribute(const QString &name, const QString &value);

    /** Reads the element that the reader has just entered. */
    static CatalogueNode read(QXmlStreamReader &reader);
    /** The element as the tools for catalogues write it. */
    QString written(const QString &indentation = {}) const;
};
