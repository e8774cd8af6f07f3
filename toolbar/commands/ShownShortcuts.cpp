// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/commands/ShownShortcuts.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QMenu>

namespace {

/** Marks the actions whose sequences are only shown. */
constexpr char onlyShownProperty[] = "shortcutonlyshown";

bool isOnlyShown(const QObject *action)
{
    return action->property(onlyShownProperty).toBool();
}

/** The actions of a widget and of its menus; menus may be in one another without a limit. */
QList<QAction *> actionsBelow(const QWidget *widget)
{
    QList<QAction *> actions = widget->actions();
    for (qsizetype i = 0; i < actions.size(); ++i) {
        if (const QMenu *menu = actions.at(i)->menu())
            actions += menu->actions();
    }
    return actions;
}

} // namespace

ShownShortcuts::ShownShortcuts(QWidget *toolBar)
    : m_toolBar(toolBar)
{
    toolBar->installEventFilter(this);
}

void ShownShortcuts::activate(QAction *action, const QKeySequence &sequence)
{
    if (isOnlyShown(action)) {
        action->setProperty(onlyShownProperty, QVariant());
        action->removeEventFilter(this);
        action->setShortcutContext(Qt::WindowShortcut);
    }
    action->setShortcut(sequence);
}

void ShownShortcuts::show(QAction *action, const QKeySequence &sequence)
{
    const bool isNew = action->shortcut() != sequence;
    if (isNew && !sequence.isEmpty() && !isOnlyShown(action))
        keepFromActing(action);
    action->setShortcut(sequence);
}

void ShownShortcuts::showOnly(QAction *action, const QKeySequence &sequence)
{
    if (!isOnlyShown(action))
        keepFromActing(action);
    action->setShortcut(sequence);
}

void ShownShortcuts::keepFromActing(QAction *action)
{
    action->setProperty(onlyShownProperty, true);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->installEventFilter(this);
}

bool ShownShortcuts::eventFilter(QObject *watched, QEvent *event)
{
    // Comes from the focused widget up to the toolbar before a key is looked up. With a menu open
    // it does not come here, but then there are no shortcuts beside that of the focused button.
    if (event->type() == QEvent::ShortcutOverride && watched == m_toolBar)
        setAside(QApplication::focusWidget());
    return event->type() == QEvent::Shortcut && isOnlyShown(watched);
}

void ShownShortcuts::setAside(const QWidget *focused)
{
    const QList<QAction *> actions = focused ? actionsBelow(focused) : QList<QAction *>();
    for (QAction *action : actions) {
        if (isOnlyShown(action) && !action->shortcut().isEmpty()) {
            m_setAside.append({action, action->shortcut()});
            action->setShortcut(QKeySequence());
        }
    }
    if (!m_setAside.isEmpty())
        QMetaObject::invokeMethod(
            this, [this] { putBack(); }, Qt::QueuedConnection);
}

void ShownShortcuts::putBack()
{
    const auto actions = std::exchange(m_setAside, {});
    for (const auto &[action, sequence] : actions) {
        if (action && action->shortcut().isEmpty())
            action->setShortcut(sequence);
    }
}
