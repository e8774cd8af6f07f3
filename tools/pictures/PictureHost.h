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
 * A host without a document that opens every row, menu and state of a toolbar and takes a picture
 * of each.
 */
class PictureHost
{
public:
    PictureHost(const QDomDocument &description, const QMap<QString, QString> &skinMap, int width);

    /** Takes all pictures and saves them on one sheet; returns false if saving failed. */
    bool takeAll(const QString &path);

private:
    void answerAuthority();
    void takeTabs();
    /** Whether the control can open a menu without a picture so far; scrolls it into view. */
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
