// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/SourceDocument.h"

#include "toolbar/QtCompat.h"
#include "toolbar/description/DescriptionParser.h"

#include <QDomDocument>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

/** Converts offsets in a text to lines and columns. */
class LineIndex
{
public:
    explicit LineIndex(const QString &text)
    {
        for (auto at = text.indexOf(QLatin1Char('\n')); at >= 0;
             at = text.indexOf(QLatin1Char('\n'), at + 1))
            m_starts.push_back(at + 1);
    }

    SourcePosition position(qint64 offset) const
    {
        const auto next = std::upper_bound(m_starts.begin(), m_starts.end(), offset);
        return {static_cast<int>(next - m_starts.begin()),
                static_cast<int>(offset - *std::prev(next)) + 1};
    }

private:
    std::vector<qint64> m_starts{0};
};

/** The text of the bytes, without a byte-order mark; nothing if they are not UTF-8 or UTF-16. */
std::optional<QString> decoded(const QByteArray &bytes)
{
    QTextStream stream(bytes);
    QtCompat::setUtf8(stream);
    const QString text = stream.readAll();
    const bool isFaulty =
        text.contains(QChar::ReplacementCharacter) && !bytes.contains("\xEF\xBF\xBD");
    return isFaulty ? std::nullopt : std::optional<QString>(text);
}

bool endsName(QChar character)
{
    return character.isSpace() || character == QLatin1Char('=') || character == QLatin1Char('/')
           || character == QLatin1Char('>') || character.isNull();
}

bool opensValue(QChar character)
{
    return character == QLatin1Char('"') || character == QLatin1Char('\'') || character.isNull();
}

/** Reads a document; the tag of each element is scanned again for the positions of attributes. */
class DocumentReader
{
public:
    explicit DocumentReader(const QString &text)
        : m_text(text)
        , m_lines(text)
        , m_reader(text)
    {
        // QDomDocument, which hosts use, does not process namespaces either.
        m_reader.setNamespaceProcessing(false);
    }

    SourceDocument read()
    {
        while (!m_reader.atEnd())
            readToken(m_reader.readNext());
        if (m_reader.hasError())
            return failed(m_reader.errorString(), m_lines.position(m_reader.characterOffset()));
        return std::move(m_document);
    }

private:
    void readToken(QXmlStreamReader::TokenType token)
    {
        if (token == QXmlStreamReader::StartElement)
            openElement();
        else if (token == QXmlStreamReader::EndElement)
            m_open = m_document.at(m_open).parent;
        else if (token == QXmlStreamReader::Characters && !m_reader.isWhitespace())
            noteText();
    }

    void openElement()
    {
        // A tag contains no further "<", so the last one is its beginning.
        const auto start = m_text.lastIndexOf(QLatin1Char('<'), m_reader.characterOffset() - 1);
        SourceElement element;
        element.tag = m_reader.qualifiedName().toString();
        element.position = m_lines.position(start);
        element.parent = m_open;
        readAttributes(element, start);
        fillRecord(element);

        const auto index = static_cast<int>(m_document.elements.size());
        if (m_open >= 0)
            m_document.elements[static_cast<std::size_t>(m_open)].children.append(index);
        m_document.elements.push_back(std::move(element));
        m_open = index;
    }

    /** Elements from an entity have the position of the entity and no attributes in the text. */
    void readAttributes(SourceElement &element, qint64 start) const
    {
        const QXmlStreamAttributes attributes = m_reader.attributes();
        qint64 offset = skipName(start + 1);
        for (const QXmlStreamAttribute &attribute : attributes) {
            while (at(offset).isSpace())
                ++offset;
            const qint64 nameStart = offset;
            offset = skipName(offset);
            const QString name = attribute.qualifiedName().toString();
            const bool isHere = m_text.mid(nameStart, offset - nameStart) == name;
            element.attributes.append({name, attribute.value().toString(),
                                       isHere ? m_lines.position(nameStart) : element.position});
            offset = skipValue(offset);
        }
    }

    /** Null beyond the end, which the scan of an element from an entity may reach. */
    QChar at(qint64 offset) const
    {
        return offset >= 0 && offset < m_text.size() ? m_text.at(offset) : QChar();
    }

    qint64 skipName(qint64 offset) const
    {
        while (!endsName(at(offset)))
            ++offset;
        return offset;
    }

    qint64 skipValue(qint64 offset) const
    {
        while (!opensValue(at(offset)))
            ++offset;
        const auto end = m_text.indexOf(at(offset), offset + 1);
        return end < 0 ? m_text.size() : end + 1;
    }

    /** Reads the values with the library's parser. */
    void fillRecord(SourceElement &element)
    {
        QDomElement copy = m_factory.createElement(element.tag);
        for (const SourceAttribute &attribute : std::as_const(element.attributes))
            copy.setAttribute(attribute.name, attribute.value);
        GetElementAttributes(&copy, &element.record);
    }

    void noteText()
    {
        if (m_open < 0)
            return;
        SourceElement &element = m_document.elements[static_cast<std::size_t>(m_open)];
        if (element.strayText)
            return;
        const auto length = m_reader.text().size();
        auto offset = std::max<qint64>(0, m_reader.characterOffset() - length);
        while (offset < m_text.size() && m_text.at(offset).isSpace())
            ++offset;
        element.strayText = m_lines.position(offset);
    }

    static SourceDocument failed(const QString &message, SourcePosition position)
    {
        SourceDocument document;
        document.fault = SourceFault{message, position};
        return document;
    }

    const QString &m_text;
    LineIndex m_lines;
    QXmlStreamReader m_reader;
    QDomDocument m_factory;
    SourceDocument m_document;
    int m_open = -1;
};

/** Faults that QDomDocument reports and QXmlStreamReader accepts. */
std::optional<SourceFault> hostFault(const QByteArray &description)
{
    QDomDocument document;
    SourceFault fault;
    if (document.setContent(description, &fault.message, &fault.position.line,
                            &fault.position.column))
        return std::nullopt;
    return fault;
}

} // namespace

const SourceAttribute *SourceElement::find(const char *attribute) const
{
    const auto found =
        std::find_if(attributes.begin(), attributes.end(), [attribute](const SourceAttribute &one) {
            return one.name == QLatin1String(attribute);
        });
    return found == attributes.end() ? nullptr : &*found;
}

SourcePosition SourceElement::positionOf(const char *attribute) const
{
    const SourceAttribute *found = find(attribute);
    return found ? found->position : position;
}

bool SourceDocument::isBelow(const SourceElement &element, Role role) const
{
    const SourceElement *above = &element;
    while (above->parent >= 0 && above->role != role)
        above = &parentOf(*above);
    return above->role == role;
}

SourceDocument readDocument(const QByteArray &description)
{
    SourceDocument document;
    const std::optional<QString> text = decoded(description);
    if (!text) {
        document.fault = SourceFault{QString(), {}, true};
        return document;
    }
    document = DocumentReader(*text).read();
    if (!document.fault)
        document.fault = hostFault(description);
    return document;
}
