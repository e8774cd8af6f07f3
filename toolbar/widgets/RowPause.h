// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLayout>
#include <QList>
#include <QPointer>

class MRScrollArea;
class QWidget;

/**
 * Keeps what is below a widget in its place while its style sheet is replaced: layouts wait until
 * the event loop runs again, rows stay where they are scrolled to, and their frames take over the
 * last sheet only: without one in between they are wider, and Qt would measure the row for that.
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
        QPointer<MRScrollArea> row;
        int value;
        bool isPausedHere;
    };

    QList<QPointer<QLayout>> m_layouts;
    QList<Place> m_places;
};
