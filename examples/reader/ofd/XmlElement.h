// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPair>
#include <QString>
#include <QVector>

#include <cstddef>
#include <forward_list>

namespace Ofd {

/** One element of an XML file with its attributes, text and children. Names have no prefix. */
struct XmlElement
{
    /** Takes no more memory than its elements, also while it grows. */
    using Children = std::forward_list<XmlElement>;

    QString name;
    QString text; ///< All characters directly inside, including blanks.
    QVector<QPair<QString, QString>> attributes;
    Children children;

    /**
     * Throws a Fault for text that is not well formed, nested too deeply, has a DTD or too many
     * elements, or is in an encoding that hides how many it has.
     */
    static XmlElement parse(const QByteArray &bytes, const QString &path);

    bool is(const char *wanted) const { return name == QLatin1String(wanted); }
    /** Null if there is no such attribute. */
    QString attribute(const char *wanted) const;
    bool flag(const char *wanted, bool otherwise) const;
    /** Counts them each time. */
    std::size_t childCount() const;
    /** The first child of that name; nullptr if there is none. */
    const XmlElement *child(const char *wanted) const;
    /** The trimmed text of that child; empty if there is none. */
    QString childText(const char *wanted) const;
};

} // namespace Ofd
