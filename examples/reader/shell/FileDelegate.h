// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

class QListWidget;
class QListWidgetItem;

/** Paints the files of a list: the name, and below it the folder, less strong. */
class FileDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    static void addFile(QListWidget *list, const QString &fileName);
    static QString fileOf(const QListWidgetItem &item);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
