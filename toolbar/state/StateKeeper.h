// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/state/ControlLists.h"
#include "toolbar/state/KeptState.h"

#include <QHash>
#include <QObject>

class QToolButton;
class ToolRows;

/**
 * Gathers what is kept of a toolbar between two runs, tells of each change of it, and restores it.
 */
class StateKeeper : public QObject
{
    Q_OBJECT

public:
    StateKeeper(ControlLists lists, ToolRows &rows);

    /** What there is now. */
    KeptState state() const;

    /** What restoreFirst() will restore; drop buttons that are made have their faces at once. */
    void expect(const KeptState &state);
    /** The tab that is expected to be the first on show; empty if any may be. */
    QString expectedTab() const { return m_expected.tab; }
    /** Restores what was expected, when the top line has been made; the tab is open already. */
    void restoreFirst();
    /**
     * Restores what the state says, triggers no command and reports no change. A tab that is opened
     * asks the host for states: the object may be gone on return.
     */
    void restore(const KeptState &state);

    /** A drop button whose face follows the choice from its menu has been made. */
    void takeSwitchable(QToolButton *button);
    /** Buttons of the quick access bar may have been shown or hidden. */
    void noteQuickAccess();
    /** What the host has set at run time; an empty text says nothing of it. */
    void noteLooks(const QString &scale, const QString &scheme);
    /** The commands that the user has added to the quick access bar. */
    void setAdded(const QStringList &names);
    /** The commands that the user has found last. */
    void setFound(const QStringList &names);
    QStringList found() const { return m_found.value_or(QStringList()); }

Q_SIGNALS:
    /** The state is another one now. */
    void changed();
    /** Restored are the commands added to the quick access bar, or those found last. */
    void addedRestored(const QStringList &names);
    void foundRestored(const QStringList &names);

private:
    void note();
    std::vector<bool> shownButtons() const;
    void restoreLists(const KeptState &state);
    void restoreQuickAccess(const KeptState &state);
    void restoreFaces(const KeptState &state);
    void restoreTab(const QString &tab);
    void noteTab(const QString &tab);
    void restoreFace(QToolButton *button) const;
    void noteFace(const QToolButton *button);

    const ControlLists m_lists;
    ToolRows &m_rows;
    KeptState m_expected;
    QString m_restoredTab;          ///< While it is being opened.
    QString m_told;                 ///< The state when it was last told.
    std::vector<bool> m_shown;      ///< Which quick access buttons were shown then.
    QMap<QString, QString> m_faces; ///< Also of buttons that are made later.
    QHash<QString, QPointer<QToolButton>> m_switchable; ///< Those that have been made.
    QHash<QString, QString> m_describedFaces;           ///< Of these.
    std::optional<QStringList> m_added;
    std::optional<QStringList> m_found;
    QString m_scale;
    QString m_scheme;
    bool m_isRestoring = false;
};
