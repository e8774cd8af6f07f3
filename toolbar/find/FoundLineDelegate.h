// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/find/FindLook.h"

#include <QStyledItemDelegate>

struct FoundLine;

/** Paints the icon, the text above its place, and the key at the end of the line. */
class FoundLineDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setLook(const FindLook &look) { m_look = look; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintGround(QPainter *painter, const QStyleOptionViewItem &option) const;
    void paintIcon(QPainter *painter, const QRect &place, const FoundLine &line) const;
    int paintKey(QPainter *painter, const QRect &place, Qt::LayoutDirection direction,
                 const FoundLine &line) const;
    void paintTexts(QPainter *painter, const QRect &place, Qt::LayoutDirection direction,
                    const FoundLine &line) const;

    FindLook m_look;
};
