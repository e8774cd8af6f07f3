// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/widgets/Panel.h"

#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>

/**
 * A tab of the top line. To style sheets and hosts it is a push button like any other, so it has no
 * type of its own in Qt; assistive technology is told that it is a tab.
 */
class TabButton : public QPushButton
{
public:
    /** Where the page of a tab is. */
    struct Page
    {
        const QStackedWidget *pages; ///< Of all tabs.
        int position;
    };

    explicit TabButton(const Page &page);

    /** Whether the page of the tab is the one on show, be it folded or not. */
    bool isOnShow() const { return m_pages && m_pages->currentIndex() == m_position; }
    /** Whether the page on show is to be seen. */
    bool areRowsShown() const { return m_pages && m_pages->isVisible(); }

private:
    QPointer<const QStackedWidget> m_pages;
    int m_position;
};

/** What the tabs of a top line stand on: assistive technology is told that it is a list of tabs. */
class TabList : public Panel
{
public:
    explicit TabList(QWidget *parent);
};
