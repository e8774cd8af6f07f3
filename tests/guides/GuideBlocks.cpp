// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "GuideBlocks.h"

#include "tests/support/Elements.h"

#include <QDirIterator>
#include <QFile>

namespace {

/** Tags of elements that are not commands or have no widget or action of their own. */
const QStringList frames{"tabbutton", "buttongroup", "extra", "item"};

QByteArray wholeDocument(const QByteArray &code, const QString &kind)
{
    if (kind == "row") {
        return "<uiconfig prefix=''><toolbar_tabbar><tabbutton name='tb_row' text='Tools' "
               "checkable='true' checked='true'>"
               + code + "</tabbutton></toolbar_tabbar></uiconfig>";
    }
    return code.contains("<uiconfig") ? code : "<uiconfig prefix=''>" + code + "</uiconfig>";
}

GuideBlock readBlock(const QString &path)
{
    // <name>.<kind>.<picture>.xml
    const QStringList parts = path.section('/', -1).split('.');
    GuideBlock block;
    block.name = parts.at(0);
    block.picture = parts.at(2);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        block.error = file.errorString();
    else
        block.description.setContent(wholeDocument(file.readAll(), parts.at(1)), &block.error);
    return block;
}

} // namespace

QList<GuideBlock> guideBlocks(const QString &folder)
{
    QStringList paths;
    QDirIterator files(folder, {"*.xml"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths.append(files.next());
    paths.sort();
    QList<GuideBlock> blocks;
    for (const QString &path : std::as_const(paths))
        blocks.append(readBlock(path));
    return blocks;
}

QStringList controlNames(const QDomElement &description)
{
    QStringList names;
    const QList<QDomElement> elements = elementsBelow(description);
    for (const QDomElement &element : elements) {
        const QString name = element.attribute("action", element.attribute("name"));
        if (!name.isEmpty() && !frames.contains(element.tagName()))
            names.append(name);
    }
    return names;
}
