// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/Elements.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

/** The names in a description, by what they may come back as. */
struct DescribedNames
{
    explicit DescribedNames(const QDomDocument &document)
    {
        // A menu's way to a command and a quick button report the command's own name.
        static const QRegularExpression prefixes("^(menu_)?(qbar_)?");
        const QList<QDomElement> elements = elementsBelow(document.documentElement());
        for (const QDomElement &element : elements) {
            const QString name = element.attribute("action", element.attribute("name"));
            if (name.isEmpty())
                continue;
            all.append(name);
            commands.insert(QString(name).remove(prefixes));
            // Clearing the history is reported by the menu, which keeps the name as it is.
            if (name.contains("f_clearhistory"))
                commands.insert(name);
            if (element.attribute("doubleclick") == "true")
                doubleClick.insert(name);
            if (element.tagName() == "item")
                zoomModes.insert(name);
        }
    }

    QStringList all;           ///< In the order of the document, without empty ones.
    QSet<QString> commands;    ///< What DoActive() may report.
    QSet<QString> doubleClick; ///< What DoDoubleActive() may report.
    QSet<QString> zoomModes;   ///< The predefined entries of the zoom box.
};
