// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/XmlCopy.h"

#include "ofd/Fault.h"
#include "ofd/Wording.h"

#include <algorithm>

namespace Ofd {

XmlCopy::XmlCopy(const QByteArray &bytes)
    : m_reader(bytes)
    , m_writer(&m_buffer)
{
    // Prefixes are copied as they stand.
    m_reader.setNamespaceProcessing(false);
    m_buffer.open(QIODevice::WriteOnly);
}

bool XmlCopy::next()
{
    if (m_reader.atEnd())
        return false;
    const QXmlStreamReader::TokenType token = m_reader.readNext();
    if (token == QXmlStreamReader::EndElement)
        --m_depth;
    if (token != QXmlStreamReader::StartElement)
        return token != QXmlStreamReader::Invalid;
    if (m_depth++ == 0) {
        const QString root = m_reader.qualifiedName().toString();
        m_prefix = root.left(root.indexOf(QChar(u':')) + 1);
    }
    return true;
}

QString XmlCopy::name() const
{
    const QString name = m_reader.qualifiedName().toString();
    return name.mid(name.indexOf(QChar(u':')) + 1);
}

bool XmlCopy::begins(const char *name, int depth) const
{
    return m_reader.isStartElement() && m_depth == depth + 1 && this->name() == QLatin1String(name);
}

bool XmlCopy::ends(int depth) const
{
    return m_reader.isEndElement() && m_depth == depth;
}

void XmlCopy::copy()
{
    switch (m_reader.tokenType()) {
    case QXmlStreamReader::StartDocument:
        m_writer.writeStartDocument();
        break;
    case QXmlStreamReader::StartElement:
        copyWith(QString(), QString());
        break;
    case QXmlStreamReader::EndElement:
        m_writer.writeEndElement();
        break;
    case QXmlStreamReader::Characters:
        if (m_reader.isCDATA())
            m_writer.writeCDATA(m_reader.text().toString());
        else
            m_writer.writeCharacters(m_reader.text().toString());
        break;
    case QXmlStreamReader::Comment:
        m_writer.writeComment(m_reader.text().toString());
        break;
    case QXmlStreamReader::ProcessingInstruction:
        m_writer.writeProcessingInstruction(m_reader.processingInstructionTarget().toString(),
                                            m_reader.processingInstructionData().toString());
        break;
    default:
        break;
    }
}

void XmlCopy::copyWith(const QString &attribute, const QString &value)
{
    m_writer.writeStartElement(m_reader.qualifiedName().toString());
    const QXmlStreamAttributes attributes = m_reader.attributes();
    for (const QXmlStreamAttribute &each : attributes) {
        const QString name = each.qualifiedName().toString();
        if (name != attribute)
            m_writer.writeAttribute(name, each.value().toString());
    }
    if (!attribute.isEmpty())
        m_writer.writeAttribute(attribute, value);
}

void XmlCopy::addElement(const char *name, const QString &text)
{
    m_writer.writeTextElement(withPrefix(name), text);
}

QByteArray XmlCopy::finished()
{
    if (m_reader.hasError())
        throw Fault{Wording::tr("包内的批注文件不是正确的 XML。")};
    return m_buffer.data();
}

QString allowedInXml(QString text)
{
    const auto isForbidden = [](QChar c) {
        const bool isControl = c < QChar(u' ') && c != QChar(u'\n') && c != QChar(u'\t');
        return isControl || c.isSurrogate() || c.unicode() >= 0xFFFE;
    };
    QString allowed;
    allowed.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isPair =
            c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair)
            allowed += text.mid(i++, 2);
        else if (!isForbidden(c))
            allowed += c;
    }
    return allowed;
}

} // namespace Ofd
