// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/state/ControlLists.h"

#include <QObject>

class DropMenuIndex;

/**
 * The checked state of the actions of a name, and of the drop buttons that follow their menus.
 *
 * A state that is set may run the host's code, and that may delete the toolbar and this with it.
 */
class CheckedStates : public QObject
{
public:
    CheckedStates(ControlLists lists, DropMenuIndex &dropMenus);

    /** Sets the state without a report to the host. */
    void setChecked(const QString &name, bool checked);
    /** That of the first checkable action of the name; false if there is none. */
    bool isChecked(const QString &name) const;
    /** Unchecks every action and every drop button, without a report to the host. */
    void uncheckAll();

private:
    void matchDropButtonsToMenus();
    void endShapeTool(const QString &checkedName);

    const ControlLists m_lists;
    DropMenuIndex &m_dropMenus;
};
