// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class ControlFactory;
class ControlReceiver;
class MRSearchBar;
class MenuMaker;
class QLabel;
class QPushButton;
struct Controller;

/** Makes the search field of the top line and the button of its options. */
class SearchMaker
{
public:
    /** @param records those of the section */
    SearchMaker(const ControlFactory &factory, ControlReceiver &receiver,
                const QList<Controller *> &records);

    /** The field with its label and direction buttons; null if no direction is described. */
    MRSearchBar *makeField();
    /** The button that opens the options; null if none is described. */
    QPushButton *makeSetButton(MenuMaker &menus);

private:
    QLabel *makeLabel(const Controller &record) const;
    QPushButton *makeDirectionButton(const Controller &record);

    const ControlFactory &m_factory;
    ControlReceiver &m_receiver;
    QList<Controller *> m_records;
};
