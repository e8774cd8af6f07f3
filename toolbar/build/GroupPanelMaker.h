// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class ControlFactory;
class ControlReceiver;
class MRGroupButton;
class MRSearchBar;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QToolBar;
class QToolButton;
class QWidget;
struct Controller;

/** Makes the panels that hold several controls: button groups on a row, extra groups at its end. */
class GroupPanelMaker
{
public:
    GroupPanelMaker(ControlFactory &factory, ControlReceiver &receiver);

    /** The panel of what the "extra" elements among @p children hold, empty if there are none. */
    QWidget *makeExtraGroup(const QList<Controller *> &children);

    /** The panel of a button group, two buttons to a column. */
    QWidget *makeButtonGroup(const QList<Controller *> &children, QToolBar *row);

private:
    QWidget *makeExtraControl(QWidget *panel, const Controller &record);
    QLabel *makeLabel(const Controller &record) const;
    QLineEdit *makePlainField(const Controller &record) const;
    MRSearchBar *makeExtraSearchField(QWidget *panel, const Controller &record);
    QPushButton *makeExtraButton(QWidget *panel, const Controller &record);
    QToolButton *makeGroupButton(const Controller &record);
    QToolButton *makeMenuButton(const Controller &record);
    void giveMenu(MRGroupButton *button, const Controller &record, QMenu *menu);
    QToolButton *makePlainButton(const Controller &record);

    ControlFactory &m_factory;
    ControlReceiver &m_receiver;
};
