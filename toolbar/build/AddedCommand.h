// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/description/Controller.h"

#include <QObject>
#include <QPointer>

class ControlFactory;
class Presentation;
class QAction;
class QMenu;
class QToolBar;

/**
 * A command of a row that the user has added to the quick access bar: its button there and its
 * entry in the menu of the customise button. They are as the command is, once that is made.
 */
class AddedCommand : public QObject
{
    Q_OBJECT

public:
    /** @param command the record of the row's button; must outlive this */
    AddedCommand(const Controller &command, QToolBar *bar, QMenu *menu,
                 const ControlFactory &factory, QObject *parent);

    const QString &name() const { return m_command.name; }
    const Controller &command() const { return m_command; }
    /** The button's action; null when its bar is deleted. */
    QAction *button() const { return m_button; }

    /** Has the button be as the command from now on; the first one that there is counts. */
    void follow(QAction *command);
    bool isFollowing() const { return !m_source.isNull(); }
    /** Shows once more how the command is: a click has checked the button by itself. */
    void update();

    /** Takes button and entry away and has everything deleted: the entry may be in use. */
    void remove();

    /** Gives button and entry their texts and the icon. */
    void present(const Presentation &how);

Q_SIGNALS:
    void clicked();
    /** The user has unticked the entry. */
    void removalAsked();

private:
    void placeButton(QToolBar *bar, const ControlFactory &factory);
    QString ownText(const Presentation &how) const;

    const Controller &m_command;
    Controller m_record; ///< Of the button: the command's, but for the name.
    QPointer<QAction> m_button;
    QPointer<QAction> m_entry;
    QPointer<QAction> m_source;
};
