// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/assist/ForeignShortcuts.h"
#include "toolbar/QtCompat.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QShortcut>

#include <algorithm>

namespace {

/** Qt has the shortcuts of a window act in the tool windows that float above it, too. */
bool isReached(const QWidget *window)
{
    const QWidget *active = QApplication::activeWindow();
    const bool isFloating = active && active != window && active->windowType() == Qt::Tool;
    if (isFloating && active->parentWidget())
        active = active->parentWidget()->window();
    return active == window;
}

bool reachesFrom(const QWidget *widget, Qt::ShortcutContext context)
{
    if (!widget->isVisible() || !widget->isEnabled() || !isReached(widget->window()))
        return false;

    const QWidget *focused = QApplication::focusWidget();
    switch (context) {
    case Qt::WidgetShortcut:
        return widget == focused;
    case Qt::WidgetWithChildrenShortcut:
        return widget == focused || widget->isAncestorOf(focused);
    default:
        return true;
    }
}

/** The actions of a widget and of the menus that open from it, as far as they can be used. */
QList<QAction *> usableActions(const QWidget *widget)
{
    QList<QAction *> usable = widget->actions();
    for (qsizetype i = 0; i < usable.size(); ++i) {
        const QMenu *menu = usable.at(i)->menu();
        if (menu && usable.at(i)->isEnabled() && usable.at(i)->isVisible())
            usable += menu->actions();
    }
    return usable;
}

bool hasAction(const QWidget *widget, const QKeySequence &sequence)
{
    const QList<QAction *> actions = usableActions(widget);
    return std::any_of(actions.begin(), actions.end(), [&](const QAction *action) {
        return action->isEnabled() && action->isVisible() && action->shortcuts().contains(sequence)
               && reachesFrom(widget, action->shortcutContext());
    });
}

} // namespace

bool ForeignShortcuts::reach(QWidget *window, const QKeySequence &sequence,
                             const std::function<bool(const QShortcut *)> &isLeftOut)
{
    const QList<QShortcut *> shortcuts = window->findChildren<QShortcut *>();
    for (const QShortcut *shortcut : shortcuts) {
        const auto *parent = qobject_cast<const QWidget *>(shortcut->parent());
        if (shortcut->isEnabled() && QtCompat::hasKeys(shortcut, sequence) && !isLeftOut(shortcut)
            && parent && reachesFrom(parent, shortcut->context()))
            return true;
    }
    const QWidgetList widgets = QWidgetList{window} + window->findChildren<QWidget *>();
    return std::any_of(widgets.begin(), widgets.end(), [&](const QWidget *widget) {
        return !qobject_cast<const QMenu *>(widget) && hasAction(widget, sequence);
    });
}
