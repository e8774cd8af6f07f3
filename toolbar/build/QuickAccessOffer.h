// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class AddedCommands;
class ControlFactory;
class QMenu;
class QWidget;

/**
 * The context menu of the commands on rows, which adds one to the quick access bar or removes it.
 * What is no command has none.
 */
class QuickAccessOffer : public QObject
{
    Q_OBJECT

public:
    /** @param commands owns this */
    QuickAccessOffer(AddedCommands *commands, const ControlFactory &factory);

    /** Offers the commands of the buttons that are on the rows by now, also when they move. */
    void watch(const QWidget *rows);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QMenu *makeMenu(const QString &command);

    AddedCommands *m_commands;
    const ControlFactory &m_factory;
};
