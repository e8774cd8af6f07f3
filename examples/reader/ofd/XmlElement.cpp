// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/XmlElement.h"

#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/Wording.h"

#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>

namespace Ofd {

namespace {

/**
 * Whether one tag has more attributes than any document needs. The parser compares each of them
 * with all others, so that it must not see them.
 */
bool hasEndlessTag(const QByteArray &bytes)
{
    constexpr auto leastLength = Limits::xmlAttributes * int(sizeof "a=''" - 1);
    qsizetype begin = bytes.indexOf('<');
    while (begin >= 0) {
        qsizetype end = bytes.indexOf('>', int(begin));
        if (end < 0)
            end = bytes.size();
        const char second = bytes.at(int(qMin<qsizetype>(begin + 1, bytes.size() - 1)));
        if (end - begin > leastLength && second != '!' && second != '?'
            && std::count(bytes.cbegin() + begin, bytes.cbegin() + end, '=')
                   > Limits::xmlAttributes)
            return true;
        begin = bytes.indexOf('<', int(end));
    }
    return false;
}

/** Builds the tree without recursion, so that deep nesting cannot exhaust the stack. */
class TreeBuilder
{
public:
    TreeBuilder(const QByteArray &bytes, const QString &path)
        : m_reader(bytes)
        , m_path(path)
    {
        if (hasEndlessTag(bytes))
            throw tooMuch();
    }

    XmlElement build()
    {
        while (!m_reader.atEnd())
            take(m_reader.readNext());
        if (m_reader.hasError() || m_root.name.isEmpty())
            throw Fault{Wording::tr("包内文件“%1”第 %2 行不是正确的 XML。")
                            .arg(m_path)
                            .arg(m_reader.lineNumber())};
        return std::move(m_root);
    }

private:
    void take(QXmlStreamReader::TokenType token)
    {
        if (token == QXmlStreamReader::DTD)
            throw Fault{Wording::tr("包内文件“%1”含有不允许的 DTD。").arg(m_path)};
        if (token == QXmlStreamReader::StartElement)
            begin();
        else if (token == QXmlStreamReader::EndElement)
            end();
        else if (token == QXmlStreamReader::Characters && !m_open.empty())
            m_open.back().text += m_reader.text();
    }

    void begin()
    {
        if (m_open.size() >= Limits::xmlDepth)
            throw Fault{Wording::tr("包内文件“%1”嵌套过深。").arg(m_path)};
        m_open.push_back(start());
        m_count += 1 + m_open.back().attributes.size();
        if (m_count > Limits::xmlNodes)
            throw tooMuch();
    }

    XmlElement start()
    {
        XmlElement element;
        element.name = shared(m_reader.name().toString());
        const QXmlStreamAttributes attributes = m_reader.attributes();
        element.attributes.reserve(attributes.size());
        for (const QXmlStreamAttribute &attribute : attributes)
            element.attributes.append(
                {shared(attribute.name().toString()), attribute.value().toString()});
        return element;
    }

    /** The same name with the memory of the first one: a file has few names, but many elements. */
    const QString &shared(const QString &name) { return *m_names.insert(name); }

    Fault tooMuch() const { return Fault{Wording::tr("包内文件“%1”的元素过多。").arg(m_path)}; }

    void end()
    {
        XmlElement done = std::move(m_open.back());
        m_open.pop_back();
        if (m_open.empty())
            m_root = std::move(done);
        else
            m_open.back().children.push_back(std::move(done));
    }

    QXmlStreamReader m_reader;
    QString m_path;
    std::vector<XmlElement> m_open;
    XmlElement m_root;
    QSet<QString> m_names;
    qint64 m_count = 0;
};

} // namespace

XmlElement XmlElement::parse(const QByteArray &bytes, const QString &path)
{
    return TreeBuilder(bytes, path).build();
}

QString XmlElement::attribute(const char *wanted) const
{
    for (const auto &attribute : attributes) {
        if (attribute.first == QLatin1String(wanted))
            return attribute.second;
    }
    return QString();
}

bool XmlElement::flag(const char *wanted, bool otherwise) const
{
    const QString value = attribute(wanted).trimmed();
    if (value.isEmpty())
        return otherwise;
    return value == QLatin1String("1")
           || !value.compare(QLatin1String("true"), Qt::CaseInsensitive);
}

const XmlElement *XmlElement::child(const char *wanted) const
{
    for (const XmlElement &candidate : children) {
        if (candidate.is(wanted))
            return &candidate;
    }
    return nullptr;
}

QString XmlElement::childText(const char *wanted) const
{
    const XmlElement *found = child(wanted);
    return found ? found->text.trimmed() : QString();
}

} // namespace Ofd
