// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QBuffer>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace Ofd {

/**
 * Copies an XML file token by token, so that a caller can leave out, change and add elements and
 * all else stays as it is, foreign namespaces and comments included.
 */
class XmlCopy
{
public:
    explicit XmlCopy(const QByteArray &bytes);

    /** Reads the next token, which is copied by copy(); false at the end of the file. */
    bool next();
    /** Whether the token begins an element of that name with so many elements around it. */
    bool begins(const char *name, int depth) const;
    /** Whether the token ends an element with so many elements around it. */
    bool ends(int depth) const;
    /** The name without prefix of the element that the token begins. */
    QString name() const;

    void copy();
    /** Copies the start of an element with an attribute that is set to another value. */
    void copyWith(const QString &attribute, const QString &value);
    /** Leaves out the element that the token begins. */
    void skip()
    {
        m_reader.skipCurrentElement();
        --m_depth;
    }

    /** The writer for additions, whose names need withPrefix(). */
    QXmlStreamWriter &writer() { return m_writer; }
    /** A name with the prefix that the root element has. */
    QString withPrefix(const char *name) const { return m_prefix + QLatin1String(name); }
    void addElement(const char *name, const QString &text);

    /** The copy; throws a Fault if the file was not read to its end. */
    QByteArray finished();

private:
    QXmlStreamReader m_reader;
    QBuffer m_buffer;
    QXmlStreamWriter m_writer;
    QString m_prefix;
    int m_depth = 0; ///< The number of elements that are open after the token.
};

/** The text without characters that XML cannot have. */
QString allowedInXml(QString text);

} // namespace Ofd
