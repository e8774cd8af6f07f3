#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>

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
    QSet<MRDropButton *> takeChanged();

private:
    void addEntries(MRDropButton *button, const QMenu *menu);
    void addEntry(MRDropButton *button, const QAction *entry);
    void markButtonsOf(const QAction *entry);

    QHash<const QAction *, QList<MRDropButton *>> m_buttons;
    QSet<MRDropButton *> m_changed;
};
