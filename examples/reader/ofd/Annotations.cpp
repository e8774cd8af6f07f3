// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Annotations.h"

#include "ofd/Extras.h"
#include "ofd/Fault.h"
#include "ofd/Values.h"

namespace Ofd {

namespace {

QVector<QPair<QString, QString>> parametersOf(const XmlElement &element)
{
    QVector<QPair<QString, QString>> parameters;
    const XmlElement *list = element.child("Parameters");
    if (!list)
        return parameters;
    for (const XmlElement &parameter : list->children)
        parameters.append({parameter.attribute("Name"), parameter.text});
    return parameters;
}

/** An annotation with the place of its appearance, but without its content. */
Annotation headOf(const XmlElement &element)
{
    Annotation annotation;
    annotation.id = element.attribute("ID");
    annotation.type = element.attribute("Type");
    annotation.subtype = element.attribute("Subtype");
    annotation.creator = element.attribute("Creator");
    annotation.date = element.attribute("LastModDate");
    annotation.remark = element.childText("Remark");
    annotation.parameters = parametersOf(element);
    annotation.isVisible = element.flag("Visible", true);
    annotation.isPrinted = element.flag("Print", true);
    // By default all would be read-only, but the writers that do not say so do not mean it.
    annotation.isReadOnly = element.flag("ReadOnly", false);
    const XmlElement *appearance = element.child("Appearance");
    if (appearance)
        annotation.appearance.boundary = Values::box(appearance->attribute("Boundary"));
    return annotation;
}

Annotation annotationOf(const XmlElement &element, ObjectReader &objects)
{
    Annotation annotation = headOf(element);
    if (const XmlElement *appearance = element.child("Appearance")) {
        const Objects inside = objects.readAll(*appearance, Style());
        annotation.appearance.content = Group{std::make_shared<const Objects>(inside)};
    }
    return annotation;
}

QVector<Annotation> headsOf(const XmlElement &list)
{
    QVector<Annotation> heads;
    for (const XmlElement &element : list.children) {
        if (element.is("Annot"))
            heads.append(headOf(element));
    }
    return heads;
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

QMap<int, QVector<Annotation>> Annotations::heads(const Document &document,
                                                  const DocumentRoot &root)
{
    QMap<int, QVector<Annotation>> heads;
    const Package &package = *document.package;
    QHash<int, QString> files;
    try {
        files = lists(package, root.element, document.path, root.pageIndexes);
    } catch (const Fault &) {
        return heads;
    }
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        try {
            heads.insert(file.key(), headsOf(XmlElement::parse(package.read(*file), *file)));
        } catch (const Fault &) {
            continue;
        }
    }
    return heads;
}

} // namespace Ofd
