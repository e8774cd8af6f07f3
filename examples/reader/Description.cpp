#include "Description.h"

#include <QFile>

namespace {

const QStringList shippedNames = {QStringLiteral("release"), QStringLiteral("debug")};

QString pathOf(const QString &name, const QString &skin)
{
    if (!shippedNames.contains(name))
        return name;
    return QStringLiteral(":/mr_toolbar/Resources/%1/mr_toolbar.%2.xml").arg(skin, name);
}

} // namespace

QDomDocument Description::read(const QString &name, const QString &skin, QString *error)
{
    error->clear();
    QDomDocument document;
    QFile file(pathOf(name, skin));
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1: %2").arg(name, file.errorString());
        return document;
    }
    QString fault;
    int line = 0;
    int column = 0;
    if (!document.setContent(&file, &fault, &line, &column)) {
        *error = QStringLiteral("%1:%2:%3: %4").arg(name).arg(line).arg(column).arg(fault);
        return document;
    }
    const QString root = document.documentElement().tagName();
    if (root != QLatin1String("uiconfig"))
        *error = QStringLiteral("%1: the root element is '%2', not 'uiconfig'").arg(name, root);
    return document;
}

void Description::addClearHistory(QDomDocument &description)
{
    const QDomNodeList menus = description.elementsByTagName(QStringLiteral("menu"));
    for (int i = 0; i < menus.size(); ++i) {
        QDomElement menu = menus.at(i).toElement();
        if (menu.attribute(QStringLiteral("name")) != QLatin1String("f_openrecent"))
            continue;
        QDomElement entry = description.createElement(QStringLiteral("menuitem"));
        entry.setAttribute(QStringLiteral("action"), QStringLiteral("f_clearhistory"));
        entry.setAttribute(QStringLiteral("text"), QStringLiteral("清除历史记录"));
        menu.appendChild(entry);
    }
}
