// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/Description.h"

#include <QCoreApplication>
#include <QFile>
#include <QVector>

#include <algorithm>

namespace {

const QStringList shippedNames = {QStringLiteral("release"), QStringLiteral("debug")};
const QString clearName = QStringLiteral("f_clearhistory");
const QString ownName = QStringLiteral("reader");

QString pathOf(const QString &name, const QString &skin)
{
    if (name == ownName)
        return QStringLiteral(":/reader/reader.xml");
    if (!Description::isBuiltIn(name))
        return name;
    return QStringLiteral(":/mr_toolbar/Resources/%1/mr_toolbar.%2.xml").arg(skin, name);
}

} // namespace

bool Description::isBuiltIn(const QString &name)
{
    return name == ownName || shippedNames.contains(name);
}

QDomDocument Description::read(const QString &name, const QString &skin, QString *error)
{
    error->clear();
    QFile file(pathOf(name, skin));
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1: %2").arg(name, file.errorString());
        return QDomDocument();
    }
    std::optional<DescriptionFault> fault;
    const QDomDocument document = parse(file.readAll(), &fault);
    if (!fault)
        return document;
    *error = fault->line > 0
                 ? QStringLiteral("%1:%2:%3: ").arg(name).arg(fault->line).arg(fault->column)
                 : QStringLiteral("%1: ").arg(name);
    *error += fault->message;
    return document;
}

QDomDocument Description::parse(const QByteArray &content, std::optional<DescriptionFault> *fault)
{
    fault->reset();
    QDomDocument document;
    DescriptionFault found;
    if (!document.setContent(content, &found.message, &found.line, &found.column)) {
        *fault = found;
        return document;
    }
    const QString root = document.documentElement().tagName();
    if (root != QLatin1String("uiconfig")) {
        found.message =
            QCoreApplication::translate("Description", "根元素是“%1”，而不是“uiconfig”").arg(root);
        *fault = found;
    }
    return document;
}

void Description::beginWithTab(QDomDocument &description, const QString &name)
{
    const QString checked = QStringLiteral("checked");
    const QDomNodeList nodes = description.elementsByTagName(QStringLiteral("tabbutton"));
    QVector<QDomElement> tabs;
    for (int i = 0; i < nodes.size(); ++i)
        tabs.append(nodes.at(i).toElement());
    const auto isNamed = [&name](const QDomElement &tab) {
        return tab.attribute(QStringLiteral("name")) == name;
    };
    const auto wanted = std::find_if(tabs.begin(), tabs.end(), isNamed);
    if (wanted == tabs.end())
        return;
    for (QDomElement &tab : tabs)
        tab.setAttribute(checked, QStringLiteral("false"));
    wanted->setAttribute(checked, QStringLiteral("true"));
}

void Description::addClearHistory(QDomDocument &description)
{
    const QDomNodeList menus = description.elementsByTagName(QStringLiteral("menu"));
    for (int i = 0; i < menus.size(); ++i) {
        QDomElement menu = menus.at(i).toElement();
        if (menu.attribute(QStringLiteral("name")) != QLatin1String("f_openrecent"))
            continue;
        if (menu.lastChildElement().attribute(QStringLiteral("action")) == clearName)
            continue;
        QDomElement entry = description.createElement(QStringLiteral("menuitem"));
        entry.setAttribute(QStringLiteral("action"), clearName);
        entry.setAttribute(QStringLiteral("text"),
                           QCoreApplication::translate("Description", "清除历史记录"));
        menu.appendChild(entry);
    }
}
