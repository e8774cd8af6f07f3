// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ControlStates.h"
#include "PictureSheet.h"

#include <toolbar/MRToolBar.h>

#include <QDomDocument>
#include <QMainWindow>
#include <QMap>
#include <QSet>

class QAbstractButton;
class QMenu;

/**
 * A host whose only document is empty: it lives through everything that a toolbar can show and
 * takes a picture of each.
 */
class PictureHost
{
public:
    PictureHost(const QDomDocument &description, const QMap<QString, QString> &skinMap, int width);

    /** Takes all pictures and writes them on one sheet; false if that failed. */
    bool takeAll(const QString &path);

private:
    void answerAuthority();
    void takeTabs();
    /** Whether the control can open something that has not been taken; brings it into view. */
    bool isNew(QWidget *control);
    void takeNewMenus();
    void takeNewLists();
    void takeMenuOf(QAbstractButton *button, const QString &name);
    void takeSubMenus(QMenu *menu, const QString &name);
    void takeWindow(const QString &caption);
    void takePopups(const QString &caption);

    QDomDocument m_description;
    QMainWindow m_window;
    PictureSheet m_sheet;
    ControlStates m_states;
    MRToolBar *m_toolBar;
    QSet<QString> m_opened;
};
