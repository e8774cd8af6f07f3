// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/Elements.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

/** The names in a description, by the signals that may report them. */
struct DescribedNames
{
    explicit DescribedNames(const QDomDocument &document)
    {
        // An entry "menu_…" and a quick access button are reported under the command's name.
        static const QRegularExpression prefixes("^(menu_)?(qbar_)?");
        const QList<QDomElement> elements = elementsBelow(document.documentElement());
        for (const QDomElement &element : elements) {
            const QString name = element.attribute("action", element.attribute("name"));
            if (name.isEmpty())
                continue;
            all.append(name);
            commands.insert(QString(name).remove(prefixes));
            // The menu of recent files reports this entry itself, under its full name.
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
