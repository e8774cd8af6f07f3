// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/FocusOrder.h"

#include <QAbstractButton>
#include <QToolButton>

void FocusOrder::takeByKeysOnly(const QWidget *area)
{
    const QList<QAbstractButton *> buttons = area->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        // A row leaves its tool buttons without any focus; the arrows are for the pointer alone.
        if (button->focusPolicy() != Qt::NoFocus || qobject_cast<QToolButton *>(button))
            button->setFocusPolicy(Qt::TabFocus);
    }
}

void FocusOrder::chain(QWidgetList controls)
{
    controls.removeAll(nullptr);
    for (qsizetype i = 1; i < controls.size(); ++i)
        QWidget::setTabOrder(controls.at(i - 1), controls.at(i));
}
