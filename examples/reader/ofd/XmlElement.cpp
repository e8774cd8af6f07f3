// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/XmlElement.h"

#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/Wording.h"
#include "ofd/XmlBytes.h"

#include <QBuffer>
#include <QXmlStreamReader>

#include <functional>
#include <iterator>
#include <set>
#include <vector>

namespace Ofd {

namespace {

/** Further names do not share their memory, because a file that has so many is an attack. */
constexpr std::size_t mostSharedNames = 1000;

/** Builds the tree without recursion, so that deep nesting cannot exhaust the stack. */
class TreeBuilder
{
public:
    TreeBuilder(const QByteArray &bytes, const QString &path)
        : m_bytes(XmlBytes::inUtf8(bytes))
        , m_path(path)
    {
        if (XmlBytes::hasTooMuch(m_bytes))
            throw tooMuch();
        // From a device the reader decodes one small part after the other.
        m_buffer.open(QIODevice::ReadOnly);
        m_reader.setDevice(&m_buffer);
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
    struct Open
    {
        XmlElement *element;
        XmlElement::Children::iterator lastChild;
    };

    void take(QXmlStreamReader::TokenType token)
    {
        if (token == QXmlStreamReader::StartDocument)
            checkEncoding();
        else if (token == QXmlStreamReader::DTD)
            throw Fault{Wording::tr("包内文件“%1”含有不允许的 DTD。").arg(m_path)};
        else if (token == QXmlStreamReader::StartElement)
            begin();
        else if (token == QXmlStreamReader::EndElement)
            m_open.pop_back();
        else if (token == QXmlStreamReader::Characters && !m_open.empty())
            m_open.back().element->text += m_reader.text();
    }

    void checkEncoding() const
    {
        if (!XmlBytes::isCountable(m_reader.documentEncoding()))
            throw Fault{Wording::tr("包内文件“%1”的编码“%2”不受支持。")
                            .arg(m_path, m_reader.documentEncoding().toString())};
    }

    void begin()
    {
        if (m_open.size() >= Limits::xmlDepth)
            throw Fault{Wording::tr("包内文件“%1”嵌套过深。").arg(m_path)};
        XmlElement *element = &m_root;
        if (m_open.empty()) {
            m_root = start();
        } else {
            Open &parent = m_open.back();
            parent.lastChild = parent.element->children.insert_after(parent.lastChild, start());
            element = &*parent.lastChild;
        }
        m_open.push_back({element, element->children.before_begin()});
    }

    XmlElement start()
    {
        XmlElement element;
        element.name = shared(m_reader.name());
        const QXmlStreamAttributes attributes = m_reader.attributes();
        element.attributes.reserve(attributes.size());
        for (const QXmlStreamAttribute &attribute : attributes)
            element.attributes.append({shared(attribute.name()), attribute.value().toString()});
        return element;
    }

    /** The same name with the memory of the first one: a file has few names, but many elements. */
    QString shared(QStringView name)
    {
        const auto known = m_names.find(name);
        if (known != m_names.end())
            return *known;
        return m_names.size() < mostSharedNames ? *m_names.insert(name.toString()).first
                                                : name.toString();
    }

    Fault tooMuch() const { return Fault{Wording::tr("包内文件“%1”的元素过多。").arg(m_path)}; }

    QByteArray m_bytes;
    QBuffer m_buffer{&m_bytes};
    QXmlStreamReader m_reader;
    QString m_path;
    std::vector<Open> m_open;
    XmlElement m_root;
    std::set<QString, std::less<>> m_names;
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

std::size_t XmlElement::childCount() const
{
    return std::size_t(std::distance(children.begin(), children.end()));
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
