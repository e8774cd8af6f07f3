#include "tests/monkey/DescribedNames.h"

#include "tests/support/Elements.h"

#include <QDomDocument>

namespace {

QString nameOf(const QDomElement &element)
{
    return element.attribute(QStringLiteral("action"), element.attribute(QStringLiteral("name")));
}

QString without(const QString &name, const char *prefix)
{
    const QLatin1String start(prefix);
    return name.startsWith(start) ? name.mid(start.size()) : name;
}

} // namespace

DescribedNames::DescribedNames(const QDomDocument &document)
{
    const QList<QDomElement> elements = elementsBelow(document.documentElement());
    for (const QDomElement &element : elements) {
        const QString name = nameOf(element);
        if (name.isEmpty())
            continue;
        all.append(name);
        // A menu's way to a command and a quick button report the command's own name.
        commands.insert(without(without(name, "menu_"), "qbar_"));
        // Clearing the history is reported by the menu, which keeps the name as it is.
        if (name.contains(QLatin1String("f_clearhistory")))
            commands.insert(name);
        if (element.attribute(QStringLiteral("doubleclick")) == QLatin1String("true"))
            doubleClick.insert(name);
        if (element.tagName() == QLatin1String("item"))
            zoomModes.insert(name);
    }
}
