// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/ResourceReader.h"

#include "ofd/Wording.h"

#include <utility>

namespace Ofd {

namespace {

QString missing()
{
    return Wording::tr("缺失的文件");
}

} // namespace

void ResourceReader::addLists(const XmlElement &parent, const char *name, const QString &from)
{
    for (const XmlElement &element : parent.children) {
        if (!element.is(name))
            continue;
        const QString path = m_package.find(from, element.text);
        if (path.isEmpty())
            ++m_unsupported[missing()];
        else if (!m_lists.contains(path))
            addList(path);
        m_lists.insert(path);
    }
}

void ResourceReader::addList(const QString &path)
{
    XmlElement list = XmlElement::parse(m_package.read(path), path);
    const QString base = list.attribute("BaseLoc").trimmed();
    // Locations in the list are relative to its base, or to its folder if there is no such entry.
    const QString ownFolder = path.left(path.lastIndexOf(QChar(u'/')) + 1);
    const QString folder = base.startsWith(QChar(u'/')) ? base : ownFolder + base;
    for (XmlElement &group : list.children) {
        for (XmlElement &element : group.children) {
            if (element.is("CompositeGraphicUnit"))
                m_composites.push_back(std::move(element));
            else
                addAny(element, Package::normalised(folder) + QStringLiteral("/"));
        }
    }
}

void ResourceReader::addAny(const XmlElement &element, const QString &folder)
{
    if (element.is("Font"))
        addFont(element, folder);
    else if (element.is("MultiMedia"))
        addMedia(element, folder);
    else if (element.is("ColorSpace"))
        m_colours.addSpace(element);
    else if (element.is("DrawParam"))
        m_styles.addParameters(element);
}

void ResourceReader::addFont(const XmlElement &element, const QString &folder)
{
    Font font;
    font.name = element.attribute("FontName");
    font.family = element.attribute("FamilyName");
    font.isBold = element.flag("Bold", false);
    font.isItalic = element.flag("Italic", false);
    font.hasSerifs = element.flag("Serif", false);
    const QString location = element.childText("FontFile");
    font.file = m_package.find(folder, location);
    if (font.file.isEmpty() && !location.isEmpty())
        ++m_unsupported[missing()];
    m_resources.fonts.insert(element.attribute("ID"), font);
}

void ResourceReader::addMedia(const XmlElement &element, const QString &folder)
{
    const QString type = element.attribute("Type");
    if (!type.isEmpty() && type != QLatin1String("Image")) {
        ++m_unsupported[Wording::tr("音频和视频")];
        return;
    }
    const QString file = m_package.find(folder, element.childText("MediaFile"));
    if (file.isEmpty())
        ++m_unsupported[missing()];
    m_resources.images.insert(element.attribute("ID"), file);
}

void ResourceReader::finish(QHash<QString, std::shared_ptr<const Objects>> *composites)
{
    m_styles.resolve();
    m_lists.clear(); // The next page gets composites of its own.
    // Taken first, so that a composite that cannot be read does not stay for the next page.
    const std::vector<XmlElement> elements = std::exchange(m_composites, {});
    // Composites may refer to later ones.
    for (const XmlElement &element : elements)
        m_resources.namedComposites.insert(element.attribute("ID"));
    for (const XmlElement &element : elements) {
        Objects objects;
        if (const XmlElement *content = element.child("Content"))
            objects = m_objects.readAll(*content, Style());
        composites->insert(element.attribute("ID"), std::make_shared<const Objects>(objects));
    }
}

} // namespace Ofd
