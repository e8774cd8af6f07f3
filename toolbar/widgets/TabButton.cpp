// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/TabButton.h"

#include "toolbar/widgets/TabAccess.h"

#include <QAccessible>

namespace {

void tellSelection(QWidget *tab)
{
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent state(tab, changed);
    QAccessible::updateAccessibility(&state);
}

} // namespace

TabButton::TabButton(const Page &page)
    : m_pages(page.pages)
    , m_position(page.position)
{
    TabAccess::install();
    connect(page.pages, &QStackedWidget::currentChanged, this, [this](int current) {
        tellSelection(this);
        if (current != m_position)
            return;
        QAccessibleEvent selection(this, QAccessible::Selection);
        QAccessible::updateAccessibility(&selection);
    });
}

TabList::TabList(QWidget *parent)
    : Panel(parent)
{
    TabAccess::install();
}
