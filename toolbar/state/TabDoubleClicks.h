// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>

class QAbstractButton;
class ToolRows;

/**
 * Folds or unfolds the rows by a double click on a tab, whatever its first click did. Only where a
 * click on a tab of folded rows does not unfold them by itself.
 */
class TabDoubleClicks : public QObject
{
public:
    TabDoubleClicks(ToolRows &rows, const QList<QAbstractButton *> &tabs, QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ToolRows &m_rows;
    QPointer<QObject> m_tab; ///< Pressed last.
    quint64 m_time = 0;      ///< When its first click began, in milliseconds.
    bool m_wasFolded = false;
};
