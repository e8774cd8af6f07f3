// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/CatalogueNode.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace {

const QString step = QStringLiteral("    ");

QString escaped(QString text)
{
    text.replace(QLatin1Char('&'), QLatin1String("&amp;"));
    text.replace(QLatin1Char('<'), QLatin1String("&lt;"));
    text.replace(QLatin1Char('>'), QLatin1String("&gt;"));
    text.replace(QLatin1Char('"'), QLatin1String("&quot;"));
    text.replace(QLatin1Char('\''), QLatin1String("&apos;"));
    return text;
}

/** Whether the element holds others on lines of their own, and no text. */
bool isBlock(const CatalogueNode &node)
{
    return std::any_of(node.children.begin(), node.children.end(), [](const CatalogueNode &child) {
        return !child.tag.isEmpty() && child.tag != QLatin1String("byte");
    });
}

} // namespace

CatalogueNode CatalogueNode::ofText(const QString &tag, const QString &text)
{
    CatalogueNode node;
    node.tag = tag;
    if (!text.isEmpty()) {
        CatalogueNode inner;
        inner.text = text;
        node.children.append(inner);
    }
    return node;
}

QString CatalogueNode::content() const
{
    QString all = text;
    for (const CatalogueNode &node : children)
        all += node.content();
    return all;
}

const CatalogueNode *CatalogueNode::child(const QString &name) const
{
    const auto found =
        std::find_if(children.begin(), children.end(),
                     [&name](const CatalogueNode &node) { return node.tag == name; });
    return found == children.end() ? nullptr : &*found;
}

CatalogueNode *CatalogueNode::child(const QString &name)
{
    return const_cast<CatalogueNode *>(std::as_const(*this).child(name));
}

QString CatalogueNode::attribute(const QString &name) const
{
    for (const auto &[key, value] : attributes) {
        if (key == name)
            return value;
    }
    return QString();
}

void CatalogueNode::setAttribute(const QString &name, const QString &value)
{
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [&name](const auto &one) { return one.first == name; });
    if (found == attributes.end()) {
        if (!value.isEmpty())
            attributes.append({name, value});
    } else if (value.isEmpty()) {
        attributes.erase(found);
    } else {
        found->second = value;
    }
}

CatalogueNode CatalogueNode::read(QXmlStreamReader &reader)
{
    CatalogueNode node;
    node.tag = reader.qualifiedName().toString();
    const QXmlStreamAttributes attributes = reader.attributes();
    for (const QXmlStreamAttribute &attribute : attributes)
        node.attributes.append(
            {attribute.qualifiedName().toString(), attribute.value().toString()});

    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::EndElement)
            break;
        if (token == QXmlStreamReader::StartElement) {
            node.children.append(read(reader));
        } else if (token == QXmlStreamReader::Characters) {
            CatalogueNode inner;
            inner.text = reader.text().toString();
            node.children.append(inner);
        }
    }
    if (isBlock(node)) {
        node.children.erase(
            std::remove_if(node.children.begin(), node.children.end(),
                           [](const CatalogueNode &child) { return child.tag.isEmpty(); }),
            node.children.end());
    }
    return node;
}

QString CatalogueNode::written(const QString &indentation) const
{
    if (tag.isEmpty())
        return escaped(text);

    QString opening = indentation + QLatin1Char('<') + tag;
    for (const auto &[name, value] : attributes)
        opening += QStringLiteral(" %1=\"").arg(name) + escaped(value) + QLatin1Char('"');
    const bool isEmptyTag = tag == QLatin1String("location") || tag == QLatin1String("byte");
    if (children.isEmpty() && isEmptyTag)
        return opening + QLatin1String("/>");

    // Contexts begin their lines, and what is in them is indented.
    const bool isRoot = tag == QLatin1String("TS");
    const QString inner = isRoot ? QString() : indentation + step;
    const bool hasLines = isBlock(*this);
    QString all = opening + QLatin1Char('>');
    for (const CatalogueNode &node : children)
        all += hasLines ? QLatin1Char('\n') + node.written(inner) : node.written();
    if (hasLines)
        all += QLatin1Char('\n') + indentation;
    return all + QLatin1String("</") + tag + QLatin1Char('>');
}
