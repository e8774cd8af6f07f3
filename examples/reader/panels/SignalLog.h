// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <toolbar/ToolBarTypes.h>

#include <QWidget>

class MRToolBar;
class QListWidget;

/** Lists the signals of a toolbar with their arguments; the newest is the last one. */
class SignalLog : public QWidget
{
    Q_OBJECT

public:
    explicit SignalLog(QWidget *parent = nullptr);

    void listenTo(const MRToolBar &toolBar);

private:
    void add(const QString &line);
    void addSearch(const SearchOption &option);
    void addBackground(BackgroundStyle style);

    QListWidget *m_list;
};
