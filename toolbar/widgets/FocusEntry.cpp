// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/FocusEntry.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScrollArea>

namespace {

bool isUsable(const QWidget *widget, Qt::FocusPolicy policy)
{
    return widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & policy) != 0;
}

/** A row that is not open has controls of the same names. */
QWidget *usableControl(const QWidget *area, const QString &name)
{
    const QWidgetList controls = area->findChildren<QWidget *>(name);
    for (QWidget *control : controls) {
        if (isUsable(control, Qt::StrongFocus))
            return control;
    }
    return nullptr;
}

// QScrollArea::ensureWidgetVisible() would show no more of a field than its cursor.
void bringIntoView(const QWidget *control)
{
    for (QWidget *parent = control->parentWidget(); parent; parent = parent->parentWidget()) {
        auto *area = qobject_cast<QScrollArea *>(parent);
        if (!area)
            continue;
        const QPoint middle = control->mapTo(area->widget(), control->rect().center());
        area->ensureVisible(middle.x(), middle.y(), control->width(), 0);
    }
}

void offerChoice(QWidget *control)
{
    auto *field = qobject_cast<QLineEdit *>(control);
    auto *box = qobject_cast<QComboBox *>(control);
    if (box)
        field = box->lineEdit();
    if (field)
        field->selectAll();
    else if (box)
        box->showPopup();
}

} // namespace

bool FocusEntry::enterControl(const QWidget *area, const QString &name)
{
    QWidget *control = usableControl(area, name);
    if (!control)
        return false;

    control->setFocus(Qt::ShortcutFocusReason);
    bringIntoView(control);
    offerChoice(control);
    return true;
}

bool FocusEntry::enterFirst(const QWidget *area)
{
    for (QWidget *next = area->nextInFocusChain(); next != area; next = next->nextInFocusChain()) {
        if (area->isAncestorOf(next) && isUsable(next, Qt::TabFocus)) {
            next->setFocus(Qt::ShortcutFocusReason);
            return true;
        }
    }
    return false;
}
