// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/Catalogue.h"

#include <QDir>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

// The library looks the texts up in this context.
const QString contextName = QStringLiteral("description");

const QString messageTag = QStringLiteral("message");
const QString translationTag = QStringLiteral("translation");
const QString type = QStringLiteral("type");
const QString unfinished = QStringLiteral("unfinished");
const QString vanished = QStringLiteral("vanished");
const QString obsolete = QStringLiteral("obsolete");

bool isContext(const CatalogueNode &node)
{
    const CatalogueNode *name = node.child(QStringLiteral("name"));
    return node.tag == QLatin1String("context") && name && name->content() == contextName;
}

/** The source of a message; nothing if a comment makes it another than that of a description. */
QString sourceOf(const CatalogueNode &message)
{
    const CatalogueNode *source = message.child(QStringLiteral("source"));
    const CatalogueNode *comment = message.child(QStringLiteral("comment"));
    const bool isOther = comment && !comment->content().isEmpty();
    return source && !isOther ? source->content() : QString();
}

CatalogueNode newMessage(const QString &source)
{
    CatalogueNode message;
    message.tag = messageTag;
    message.children.append(CatalogueNode::ofText(QStringLiteral("source"), source));
    message.children.append(CatalogueNode::ofText(translationTag, QString()));
    message.children.last().setAttribute(type, unfinished);
    return message;
}

/** Makes a message, which may be that of a text that had gone, one of a text that there is. */
void revive(CatalogueNode &message)
{
    CatalogueNode *translation = message.child(translationTag);
    if (!translation)
        message.children.append(CatalogueNode::ofText(translationTag, QString()));
    translation = message.child(translationTag);
    const QString state = translation->attribute(type);
    if (state == vanished)
        translation->setAttribute(type, QString());
    else if (state == obsolete || translation->content().isEmpty())
        translation->setAttribute(type, unfinished);
}

/** Marks the message of a text that there is no more; false if nothing in it is worth keeping. */
bool retire(CatalogueNode &message)
{
    CatalogueNode *translation = message.child(translationTag);
    if (!translation || translation->content().isEmpty())
        return false;
    const QString state = translation->attribute(type);
    if (state.isEmpty())
        translation->setAttribute(type, vanished);
    else if (state == unfinished)
        translation->setAttribute(type, obsolete);
    return true;
}

void removePlaces(CatalogueNode &message)
{
    message.children.erase(std::remove_if(message.children.begin(), message.children.end(),
                                          [](const CatalogueNode &node) {
                                              return node.tag == QLatin1String("location");
                                          }),
                           message.children.end());
}

void setPlaces(CatalogueNode &message, const QVector<DescribedText::Place> &places,
               const QString &folder)
{
    removePlaces(message);
    int position = 0;
    for (const DescribedText::Place &place : places) {
        if (folder.isEmpty() || place.file.isEmpty())
            continue;
        const QString file = QFileInfo(place.file).absoluteFilePath();
        CatalogueNode location;
        location.tag = QStringLiteral("location");
        location.setAttribute(QStringLiteral("filename"), QDir(folder).relativeFilePath(file));
        location.setAttribute(QStringLiteral("line"), QString::number(place.line));
        message.children.insert(position++, location);
    }
}

} // namespace

Catalogue::Catalogue()
{
    m_root.tag = QStringLiteral("TS");
    m_root.setAttribute(QStringLiteral("version"), QStringLiteral("2.1"));
}

bool Catalogue::read(const QByteArray &content)
{
    QXmlStreamReader reader(content);
    if (!reader.readNextStartElement() || reader.name() != QLatin1String("TS"))
        return false;
    const CatalogueNode root = CatalogueNode::read(reader);
    if (reader.hasError())
        return false;
    m_root = root;
    return true;
}

void Catalogue::setLanguages(const QString &sources, const QString &translations)
{
    if (!translations.isEmpty())
        m_root.setAttribute(QStringLiteral("language"), translations);
    const QString sourceLanguage = QStringLiteral("sourcelanguage");
    if (!sources.isEmpty())
        m_root.setAttribute(sourceLanguage, sources);
    else if (m_root.attribute(sourceLanguage).isEmpty())
        m_root.setAttribute(sourceLanguage, QStringLiteral("zh_CN"));
}

CatalogueNode &Catalogue::context()
{
    const auto found = std::find_if(m_root.children.begin(), m_root.children.end(), isContext);
    if (found != m_root.children.end())
        return *found;

    CatalogueNode context;
    context.tag = QStringLiteral("context");
    context.children.append(CatalogueNode::ofText(QStringLiteral("name"), contextName));
    m_root.children.append(context);
    return m_root.children.last();
}

void Catalogue::update(const QVector<DescribedText> &texts, const QString &folder)
{
    CatalogueNode &described = context();
    QVector<CatalogueNode> heading;
    QVector<CatalogueNode> former;
    QHash<QString, int> formerBySource;
    for (const CatalogueNode &node : std::as_const(described.children)) {
        if (node.tag != messageTag) {
            heading.append(node);
            continue;
        }
        formerBySource.insert(sourceOf(node), static_cast<int>(former.size()));
        former.append(node);
    }

    described.children = heading;
    for (const DescribedText &text : texts) {
        const auto known = formerBySource.constFind(text.text);
        CatalogueNode message =
            known == formerBySource.cend() ? newMessage(text.text) : former.at(*known);
        if (known != formerBySource.cend())
            former[*known].tag.clear();
        revive(message);
        setPlaces(message, text.places, folder);
        described.children.append(message);
    }
    for (CatalogueNode &message : former) {
        removePlaces(message);
        if (!message.tag.isEmpty() && retire(message))
            described.children.append(message);
    }
}

QByteArray Catalogue::content() const
{
    const QString start =
        QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n");
    return (start + m_root.written() + QLatin1Char('\n')).toUtf8();
}
