// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>

class MRDropButton;
class QAction;
class QMenu;

/**
 * Knows which drop buttons an entry concerns and which of them may be out of step with their
 * menus, so that a state by name costs the same however many drop buttons there are.
 */
class DropMenuIndex : public QObject
{
public:
    /** Files @p button under the entries of its menu, those of sub-menus too. */
    void add(MRDropButton *button);

    /** The buttons whose menus hold @p entry, or whose own entry it is. */
    QList<MRDropButton *> buttonsOf(const QAction *entry) const;

    /** The buttons that have changed, or whose entries have, since the last call. */
    QList<QPointer<MRDropButton>> takeChanged();

private:
    using Buttons = QList<QPointer<MRDropButton>>;

    /** What is filed under an address, which another action may have by now. */
    struct Entry
    {
        QPointer<QAction> action;
        Buttons buttons;
    };

    void addEntries(MRDropButton *button, const QMenu *menu);
    void addEntry(MRDropButton *button, QAction *entry);
    void markButtonsOf(const QAction *entry);
    void mark(MRDropButton *button);

    QHash<const QAction *, Entry> m_entries;
    QHash<const MRDropButton *, QPointer<MRDropButton>> m_changed;
};
