// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/TopLineLayout.h"

#include "toolbar/widgets/MRSearchBar.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace {

/** The width between least and hint that @p room allows. */
int widthWithin(const QLayoutItem &item, int room)
{
    const int least = item.minimumSize().width();
    return std::clamp(room, least, std::max(least, item.sizeHint().width()));
}

} // namespace

TopLineLayout::TopLineLayout(QLayout *commands, QWidget *tabs, QLayout *search)
{
    setContentsMargins(0, 0, 0, 0);
    addLayout(commands);
    addWidget(tabs);
    addLayout(search);
}

QSize TopLineLayout::minimumSize() const
{
    QSize size = QHBoxLayout::minimumSize();
    if (m_searchField)
        size.rwidth() -= m_searchField->widening();
    return size;
}

void TopLineLayout::setGeometry(const QRect &rect)
{
    if (rect.width() >= sizeHint().width()) {
        QHBoxLayout::setGeometry(rect);
        return;
    }
    // Nothing is placed twice: buttons that a bar hides in the one place and shows in the other
    // have the line laid out anew each time, without end.
    QLayout::setGeometry(rect);
    squeeze(rect);
}

void TopLineLayout::squeeze(const QRect &rect)
{
    const int room = rect.width() - 2 * spacing();
    const int leastCommands = itemAt(Commands)->minimumSize().width();
    const int wantedTabs = itemAt(Tabs)->sizeHint().width();
    const int search = widthWithin(*itemAt(Search), room - leastCommands - wantedTabs);
    const int tabs = widthWithin(*itemAt(Tabs), room - leastCommands - search);
    const int commands = std::max(leastCommands, room - tabs - search);

    const auto place = [this, &rect](Part part, int left, int width) {
        const QRect place(rect.left() + left, rect.top(), width, rect.height());
        itemAt(part)->setGeometry(
            QStyle::visualRect(parentWidget()->layoutDirection(), rect, place));
    };
    place(Commands, 0, commands);
    place(Tabs, commands + spacing(), tabs);
    place(Search, rect.width() - search, search);
}
