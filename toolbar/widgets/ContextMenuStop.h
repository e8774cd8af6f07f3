// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QWidget;

/**
 * Takes the requests for a context menu that a widget and those in it have no use for, so that they
 * do not go on to its parent. With the policy Qt::NoContextMenu alone, they do.
 */
class ContextMenuStop : public QObject
{
public:
    /** @param widget becomes the owner */
    explicit ContextMenuStop(QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
