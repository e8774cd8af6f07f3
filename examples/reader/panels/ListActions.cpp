// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/ListActions.h"

#include <QAction>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

ListActions::ListActions(QListWidget *list, QWidget *parent)
    : QWidget(parent)
    , m_list(list)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    list->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(list, &QListWidget::currentItemChanged, this, &ListActions::update);
}

QAction *ListActions::add(const QKeySequence &key, const std::function<void(int)> &run)
{
    auto *action = new QAction(m_list);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    m_list->addAction(action);
    auto *button = new QPushButton;
    m_layout->addWidget(button);
    connect(button, &QPushButton::clicked, action, &QAction::trigger);
    connect(action, &QAction::changed, button, [action, button] {
        button->setText(action->text());
        button->setEnabled(action->isEnabled());
    });
    connect(action, &QAction::triggered, this, [this, run] {
        if (const QListWidgetItem *item = m_list->currentItem())
            run(item->data(numberRole).toInt());
    });
    update();
    return action;
}

void ListActions::update()
{
    const QListWidgetItem *item = m_list->currentItem();
    const QString refusal = item ? item->data(refusalRole).toString() : QString();
    const QList<QAction *> actions = m_list->actions();
    for (QAction *action : actions)
        action->setEnabled(item && item->data(numberRole).isValid() && refusal.isEmpty());
    setToolTip(refusal); // Buttons have none of their own.
}
