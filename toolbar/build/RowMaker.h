// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/build/RowSeats.h"

#include <QList>

class ControlFactory;
class ControlReceiver;
class GroupPanelMaker;
class MenuMaker;
class QAction;
class QMenu;
class QToolBar;
class QWidget;
struct Controller;

/** Makes the controls of a tool row, one function per kind. */
class RowMaker
{
public:
    RowMaker(ControlFactory &factory, ControlReceiver &receiver, MenuMaker &menus,
             GroupPanelMaker &panels);

    /**
     * Makes what the records describe. Without @p addToRow buttons and menus are made for a panel,
     * and the row does not show them. Returns false without records or without a row.
     */
    bool fill(QToolBar *row, const QList<Controller *> &records, bool addToRow);

private:
    void addControls(QToolBar *row, const QList<Controller *> &records, bool addToRow);
    void addControl(const Controller &record, QToolBar *row, bool addToRow);
    void addButton(const Controller &record, QToolBar *row, bool addToRow);
    QAction *makeButtonAction(const Controller &record);
    void addMenu(const Controller &record, QToolBar *row, bool addToRow);
    QMenu *makeDropMenu(const Controller &record);
    void addButtonGroup(const Controller &record, QToolBar *row);
    void addComboBox(const Controller &record, QToolBar *row);
    void addLabel(const Controller &record, QToolBar *row);
    void addLineEdit(const Controller &record, QToolBar *row);
    void addWidget(QWidget *widget, const Controller &record, QToolBar *row);

    ControlFactory &m_factory;
    ControlReceiver &m_receiver;
    MenuMaker &m_menus;
    GroupPanelMaker &m_panels;
    RowSeats m_seats;
};
