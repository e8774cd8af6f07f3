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

/** What has been asked about: a button of a row, or an entry of the menu of what has moved. */
struct Asked
{
    QString command; ///< What a click triggers; empty where that only opens a menu.
    QRect place;     ///< In the widget that was asked.
};

Asked askedOf(const QWidget *widget, const QContextMenuEvent &event)
{
    const auto *menu = qobject_cast<const QMenu *>(widget);
    if (!menu) {
        const QAction *action = shownCommand(qobject_cast<const QToolButton *>(widget));
        return {action ? action->objectName() : QString(), widget->rect()};
    }
    QAction *entry = event.reason() == QContextMenuEvent::Keyboard ? menu->activeAction()
                                                                   : menu->actionAt(event.pos());
    if (!entry || entry->menu())
        return {};
    return {entry->objectName(), menu->actionGeometry(entry)};
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
    for (QToolButton *button : buttons) {
        button->installEventFilter(this);
        if (button->objectName() == Name::rowMore)
            button->menu()->installEventFilter(this);
    }
}

bool QuickAccessOffer::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ContextMenu)
        return false;
    const auto *widget = static_cast<const QWidget *>(watched);
    const auto &request = *static_cast<const QContextMenuEvent *>(event);
    const Asked asked = askedOf(widget, request);
    if (!m_commands->isOffered(asked.command))
        return false;
    event->accept();
    QMenu *menu = makeMenu(asked.command);
    if (request.reason() != QContextMenuEvent::Keyboard) {
        menu->popup(request.globalPos());
        return true;
    }
    const QRect &place = asked.place;
    menu->setActiveAction(menu->actions().constFirst());
    menu->popup(
        widget->mapToGlobal(widget->isRightToLeft() ? place.bottomRight() : place.bottomLeft()));
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
