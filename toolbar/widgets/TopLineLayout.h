// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHBoxLayout>
#include <QPointer>

class MRSearchBar;

/**
 * Lays out the three parts of the top line: commands, tabs, search. A line that is too narrow for
 * all of them takes room from the commands first, then from the search field, last from the tabs.
 */
class TopLineLayout : public QHBoxLayout
{
public:
    TopLineLayout(QLayout *commands, QWidget *tabs, QLayout *search);

    /**
     * Lets @p field, when it is widened, cover what is beside it instead of widening the window.
     * Null is allowed.
     */
    void setSearchField(MRSearchBar *field) { m_searchField = field; }

    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    enum Part
    {
        Commands,
        Tabs,
        Search
    };

    void squeeze(const QRect &rect);

    QPointer<MRSearchBar> m_searchField;
};
