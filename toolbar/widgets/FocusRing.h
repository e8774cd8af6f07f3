// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

/**
 * Draws a ring around the button that has the keyboard focus. Nothing is laid out anew when the
 * focus moves.
 */
class FocusRing : public QObject
{
public:
    /** Serves all buttons below @p scope, which owns the ring. */
    explicit FocusRing(QWidget *scope);

    /** A row that has scrolled the button away scrolls it back. */
    static void bringIntoView(QWidget *button);

private:
    void follow(QWidget *focused);

    QWidget *m_scope;
    QPointer<QWidget> m_ring;
};
