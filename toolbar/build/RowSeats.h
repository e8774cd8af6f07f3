// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

class ControlFactory;
class MRButtonGroup;
class MRDropButtonAction;
class QAction;
class QToolBar;
class QWidget;
class RowFit;
struct Controller;

/** Puts controls on a row: for good, or where they give way when the row is too narrow. */
class RowSeats
{
public:
    explicit RowSeats(ControlFactory &factory);

    /** Returns the button of the command. */
    QWidget *addButton(QToolBar *row, QAction *command, const Controller &record);
    void addMenu(QToolBar *row, MRDropButtonAction *action, const Controller &record);
    void addGroup(QToolBar *row, MRButtonGroup *action, const Controller &record);
    /** All controls are on the row. */
    static void close(const QToolBar *row);

private:
    RowFit *fitOf(QToolBar *row);

    ControlFactory &m_factory;
};
