// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/state/ControlLists.h"
#include "toolbar/state/ControlRules.h"

#include <QObject>
#include <QRect>

class DropMenuIndex;
class ToolRows;

/**
 * The enabled and the visible state of whatever a name addresses, an area or single controls.
 *
 * A state that is set may run the host's code, and that may delete the toolbar and this with it.
 */
class ControlStates : public QObject
{
public:
    ControlStates(ControlLists lists, const DropMenuIndex &dropMenus, ToolRows &rows);

    void setEnabled(const QString &name, bool enabled);
    /** Sets the first action of the name only, if there is one. */
    void setFirstActionEnabled(const QString &name, bool enabled);
    void setVisible(const QString &name, bool visible);

    bool isEnabled(const QString &name) const;
    bool isVisible(const QString &name) const;
    /** Where on the screen a row shows the action; invalid if none does. */
    QRect geometry(const QString &name) const;

private:
    enum class State
    {
        Enabled,
        Visible
    };

    void setControls(const QString &name, State state, bool on);
    bool setControlsOf(const ControlRule &rule, const QString &name, State state, bool on);
    void setControl(const Control &control, const ControlRule &rule, State state, bool on);
    bool leaveTab(const Control &tab);
    void setArea(const QString &name, State state, bool on);
    void showArea(const QString &name, bool visible);
    void showAdditionalControls(bool visible);
    void showQuickAccess(const QString &name, bool visible);
    void checkCustomiseEntries(const QString &name, bool checked);
    void showCompanion(const QString &name, bool visible);
    void showAction(QAction *action, bool visible);
    void replaceCurrentEntry(QAction *hidden);

    bool report(const QString &name, State state) const;
    static bool read(const Control &control, State state);

    const ControlLists m_lists;
    const DropMenuIndex &m_dropMenus;
    ToolRows &m_rows;
};
