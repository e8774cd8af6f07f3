// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/QuickAccessOffer.h"

#include "toolbar/build/AddedCommands.h"
#include "toolbar/build/ControlFactory.h"
#include "toolbar/description/Names.h"
#include "toolbar/widgets/HostAnswer.h"
#include "toolbar/widgets/MRDropButton.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>

namespace {

/** What a click on a button of a row triggers; empty for those that only open a menu. */
QString commandOf(const QToolButton *button)
{
    const QAction *action = shownCommand(button);
    return action ? action->objectName() : QString();
}

} // namespace

QuickAccessOffer::QuickAccessOffer(AddedCommands *commands, const ControlFactory &factory)
    : QObject(commands)
    , m_commands(commands)
    , m_factory(factory)
{
}

void QuickAccessOffer::watch(const QWidget *rows)
{
    // Each by itself: a disabled button does not leave the event to the row that it is on.
    const QList<QToolButton *> buttons = rows->findChildren<QToolButton *>();
    for (QToolButton *button : buttons)
        button->installEventFilter(this);
}

bool QuickAccessOffer::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ContextMenu)
        return false;
    const auto *button = qobject_cast<QToolButton *>(watched);
    const QString command = commandOf(button);
    if (!m_commands->isOffered(command))
        return false;
    event->accept();
    const auto *asked = static_cast<const QContextMenuEvent *>(event);
    QMenu *menu = makeMenu(command);
    if (asked->reason() != QContextMenuEvent::Keyboard) {
        menu->popup(asked->globalPos());
        return true;
    }
    const QRect place = button->rect();
    menu->setActiveAction(menu->actions().constFirst());
    menu->popup(
        button->mapToGlobal(button->isRightToLeft() ? place.bottomRight() : place.bottomLeft()));
    return true;
}

QMenu *QuickAccessOffer::makeMenu(const QString &command)
{
    QMenu *menu = m_factory.makeMenu(m_factory.owner(), true);
    menu->setProperty(Property::module, Module::menu);
    menu->setObjectName(Part::quickAccessOffer);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *entry = menu->addAction(m_commands->isOnBar(command) ? tr("从快速访问工具栏移除")
                                                                  : tr("添加到快速访问工具栏"));
    connect(entry, &QAction::triggered, m_commands, [commands = m_commands, command] {
        // The host hears of it while Qt still uses the menu.
        const HostAnswer answer;
        commands->toggle(command);
    });
    return menu;
}
