// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/state/QuickAccessSetting.h"

class ControlFactory;
class QAction;
class QMenu;
class QPushButton;
class QToolBar;
struct Controller;

/** Makes the quick access bar and the menu by which the user chooses what it shows. */
class QuickAccessMaker
{
public:
    /**
     * @param records those of the section, the customise button's among them
     * @param setting the user's choice, as the host has stored it
     */
    QuickAccessMaker(const ControlFactory &factory, const QList<Controller *> &records,
                     const QString &setting);

    QToolBar *makeBar() const;
    /** The menu of the customise button, with an entry for each button of the bar. */
    QMenu *makeMenu() const;
    /** The button of a "qt_set" record, which pops the menu. */
    QPushButton *makeCustomiseButton(QMenu *menu, const Controller &record) const;

private:
    QAction *makeButton(QToolBar *bar, const Controller &record) const;
    QAction *makeEntry(QMenu *menu, const Controller &record) const;

    const ControlFactory &m_factory;
    QList<Controller *> m_records;
    QuickAccessSetting m_setting;
};
