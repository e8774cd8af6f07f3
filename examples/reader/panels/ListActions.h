// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeySequence>
#include <QWidget>

#include <functional>

class QAction;
class QListWidget;
class QVBoxLayout;

/**
 * Buttons for the current item of a list. The list has the same actions in its context menu. Items
 * that they are for have a number.
 */
class ListActions : public QWidget
{
    Q_OBJECT

public:
    /** The role of the number of an item. */
    static constexpr int numberRole = Qt::UserRole + 16;
    /** The role of a sentence that says why an item must stay as it is. */
    static constexpr int refusalRole = numberRole + 1;

    explicit ListActions(QListWidget *list, QWidget *parent = nullptr);

    /** Adds an action; @p run gets the number of the current item. */
    QAction *add(const QKeySequence &key, const std::function<void(int number)> &run);

private:
    void update();

    QListWidget *m_list;
    QVBoxLayout *m_layout;
};
