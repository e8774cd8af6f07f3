// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidgetItem>

/** The place of the rows in the toolbar's layout: while peeking they take room and ask for none. */
class RowsItem : public QWidgetItem
{
public:
    explicit RowsItem(QWidget *rows)
        : QWidgetItem(rows)
    {
    }

    void setPeeking(bool isPeeking)
    {
        m_isPeeking = isPeeking;
        wid->updateGeometry();
    }

    /** What the rows ask for when they are unfolded. */
    QSize wholeSize() const
    {
        // A hidden widget's own item asks for nothing.
        return wid->sizeHint().expandedTo(wid->minimumSizeHint());
    }

    QSize sizeHint() const override { return asked(QWidgetItem::sizeHint()); }
    QSize minimumSize() const override { return asked(QWidgetItem::minimumSize()); }
    Qt::Orientations expandingDirections() const override
    {
        return m_isPeeking ? Qt::Vertical : QWidgetItem::expandingDirections();
    }

private:
    QSize asked(QSize size) const
    {
        if (m_isPeeking)
            size.setHeight(0);
        return size;
    }

    bool m_isPeeking = false;
};
