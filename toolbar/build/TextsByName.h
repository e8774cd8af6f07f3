// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QIcon>
#include <QString>

struct Controller;

/**
 * What the host has set by name in place of what is described: texts, tooltips and icons, for
 * controls that may not be made yet.
 *
 * The name of a command is found with the prefixes of menus and of quick access, too: what stands
 * there has a text of its own, but takes the tooltip and the icon of the command.
 */
class TextsByName
{
public:
    /** An empty text, tip or icon is forgotten, and the described one counts again. */
    void setText(const QString &name, const QString &text);
    void setToolTip(const QString &name, const QString &tip);
    void setIcon(const QString &name, const QIcon &icon);

    /** Null where nothing is set. What they point at is valid until something else is set. */
    const QString *text(const Controller &record) const;
    /** Where the tooltip is described as the text, it is what the text is set to. */
    const QString *toolTip(const Controller &record) const;
    /** Only what is set as a tooltip. */
    const QString *ownToolTip(const Controller &record) const;
    const QIcon *icon(const Controller &record) const;

private:
    const QString *textAsToolTip(const Controller &record) const;

    QHash<QString, QString> m_texts;
    QHash<QString, QString> m_toolTips;
    QHash<QString, QIcon> m_icons;
};
