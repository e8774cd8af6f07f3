// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

struct Controller;

/** The names that a host may use with a description, whether their controls have been made or not.
 */
class DescribedNames
{
public:
    explicit DescribedNames(const QList<Controller *> &records);

    /** As signals report them, without "menu_" and "qbar_"; each once, in the document's order. */
    const QStringList &reported() const { return m_reported; }
    /** Whether a call by that name reaches something: a control, several, or an area. */
    bool reach(const QString &name) const;
    /** The first shortcut that is described for the command; empty if there is none. */
    QString shortcut(const QString &name) const { return m_shortcuts.value(name); }

private:
    void add(const QList<Controller *> &records);
    bool hasPart(const QString &part) const;

    QStringList m_names; ///< As described.
    QStringList m_reported;
    QHash<QString, QString> m_shortcuts; ///< By every reported name; empty where none is described.
};
