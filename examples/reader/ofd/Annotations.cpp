// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Annotations.h"

#include "ofd/Extras.h"
#include "ofd/Values.h"

namespace Ofd {

namespace {

Annotation annotationOf(const XmlElement &element, ObjectReader &objects)
{
    Annotation annotation;
    annotation.id = element.attribute("ID");
    annotation.type = element.attribute("Type");
    annotation.creator = element.attribute("Creator");
    annotation.remark = element.childText("Remark");
    annotation.isVisible = element.flag("Visible", true);
    if (const XmlElement *appearance = element.child("Appearance")) {
        annotation.appearance.boundary = Values::box(appearance->attribute("Boundary"));
        const Objects inside = objects.readAll(*appearance, Style());
        annotation.appearance.content = Group{std::make_shared<const Objects>(inside)};
    }
    return annotation;
}

} // namespace

QHash<int, QString> Annotations::lists(const Package &package, const XmlElement &root,
                                       const QString &from, const QHash<QString, int> &pages)
{
    QHash<int, QString> lists;
    QString path;
    const auto index = Extras::namedFile(package, root, "Annotations", from, &path);
    if (!index)
        return lists;
    for (const XmlElement &entry : index->children) {
        const int page = pages.value(entry.attribute("PageID"), -1);
        const QString list = package.find(path, entry.childText("FileLoc"));
        if (page >= 0 && !list.isEmpty())
            lists.insert(page, list);
    }
    return lists;
}

QVector<Annotation> Annotations::read(const XmlElement &list, ObjectReader &objects)
{
    QVector<Annotation> annotations;
    for (const XmlElement &element : list.children) {
        if (element.is("Annot"))
            annotations.append(annotationOf(element, objects));
    }
    return annotations;
}

} // namespace Ofd
