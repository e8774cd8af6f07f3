// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLayout>
#include <QList>
#include <QPointer>
#include <QScrollBar>

class QWidget;

/**
 * Keeps what is below a widget in its place while its style sheet is replaced: layouts wait until
 * the event loop runs again, and rows stay where they are scrolled to.
 */
class RowPause
{
public:
    explicit RowPause(const QWidget *area);
    ~RowPause();
    Q_DISABLE_COPY_MOVE(RowPause)

private:
    struct Place
    {
        QPointer<QScrollBar> bar;
        int value;
    };

    QList<QPointer<QLayout>> m_layouts;
    QList<Place> m_places;
};
