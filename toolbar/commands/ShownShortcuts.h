// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>

#include <utility>

class QAction;
class QWidget;

/**
 * Gives actions their key sequences: those that act, and those that a menu only shows beside its
 * entry.
 *
 * Qt triggers an action by its sequence wherever the action is shown, for instance on a tool row,
 * and where the host has a shortcut of the same sequence, triggers neither. The shortcut context
 * Qt::WidgetShortcut limits that to a focused button of the action; this object handles that case.
 */
class ShownShortcuts : public QObject
{
public:
    /** @param toolBar holds all buttons of the actions, and outlives this */
    explicit ShownShortcuts(QWidget *toolBar);

    /** Gives the action a sequence that acts where the action stands. */
    void activate(QAction *action, const QKeySequence &sequence);

    /** Gives the action a sequence that is only shown, unless it is the one that acts already. */
    void show(QAction *action, const QKeySequence &sequence);

    /** The same for an action whose own sequence has acted. */
    void showOnly(QAction *action, const QKeySequence &sequence);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void keepFromActing(QAction *action);
    void setAside(const QWidget *focused);
    void putBack();

    const QWidget *m_toolBar;
    QList<std::pair<QPointer<QAction>, QKeySequence>> m_setAside; ///< While a key is handled.
};
