// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class ControlFactory;
class ControlReceiver;
class QAction;
class QMenu;
class QProxyStyle;
class ShownShortcuts;
struct Controller;

/** Makes the entries of menus, and the menus below them. */
class MenuMaker
{
public:
    MenuMaker(ControlFactory &factory, ControlReceiver &receiver, ShownShortcuts &shortcuts);

    /**
     * Appends what the records describe, sub-menus included, which get @p style unless it is null.
     * Returns false, and does nothing, without a menu or without records.
     */
    bool append(QMenu *menu, const QList<Controller *> &records, QProxyStyle *style);

private:
    void appendMenu(QMenu *menu, const Controller &record, QProxyStyle *style);
    QMenu *makeSubMenu(QMenu *menu, const Controller &record, QProxyStyle *style);
    void setShortcut(QAction *entry, const Controller &record);
    void appendEntry(QMenu *menu, const Controller &record);
    QAction *makeEntry(QMenu *menu, const Controller &record);

    ControlFactory &m_factory;
    ControlReceiver &m_receiver;
    ShownShortcuts &m_shortcuts;
};
